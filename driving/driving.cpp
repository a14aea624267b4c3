#include "driving/driving.h"

#include "app/desktop/application.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QTest>
#include <QToolBar>

namespace driving {

void PrepareDriving()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QStandardPaths::setTestModeEnabled(true);
    PrepareApplication();
}

QWidget* ShownWindow(const QString& name)
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == name && window->isVisible())
            return window;
    return nullptr;
}

QToolButton& ToolButton(const QWidget& window, const QString& toolbar, const QString& key)
{
    const auto& bar = Find<QToolBar>(window, toolbar);
    return *qobject_cast<QToolButton*>(bar.widgetForAction(&Find<QAction>(bar, key)));
}

Answers::Answers()
{
    connect(&Timer, &QTimer::timeout, this, &Answers::Look);
    Timer.start(0);
}

void Answers::Look()
{
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || Answered.contains(dialog) || !dialog->isVisible())
        return;
    if (!dialog->isActiveWindow())
        return dialog->activateWindow(); // an inactive dialog handles keys and text differently
    Answered.removeAll(nullptr);
    Answered += dialog;
    const auto* box = qobject_cast<const QMessageBox*>(dialog);
    const QString name = box != nullptr ? box->windowTitle() + ": " + box->text() : dialog->objectName();
    Seen += (Expected.empty() ? "unexpected " : "") + name;
    if (Expected.empty())
        return dialog->reject();
    // Answer later: the answer may open another box, and this timer must keep running for it.
    QTimer::singleShot(0, dialog, [answer = std::move(Expected.front()), dialog] { answer(*dialog); });
    Expected.pop_front();
}

Answers::Answer Press(QMessageBox::StandardButton button)
{
    return [button](QDialog& dialog) {
        if (auto* box = qobject_cast<QMessageBox*>(&dialog))
            box->button(button)->click();
        else
            dialog.reject();
    };
}

Answers::Answer ChooseFile(const QString& path)
{
    return [path](QDialog& dialog) {
        auto& box = Find<QLineEdit>(dialog, "fileNameEdit");
        box.setFocus(); // otherwise the dialog keeps the selected file
        box.setText(path);
        // accept is protected; only this way does the dialog use the path in its box.
        QMetaObject::invokeMethod(&dialog, "accept");
        if (dialog.isVisible())
            dialog.reject();
    };
}

Answers::Answer Dismiss()
{
    return [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); };
}

Answers::Answer PrintTo(const QString& path)
{
    return [path](QDialog& dialog) {
        if (qobject_cast<QFileDialog*>(&dialog) != nullptr) // what some desktops show when there is no printer
            return ChooseFile(path)(dialog);
        Find<QLineEdit>(dialog, "filename").setText(path);
        for (QPushButton* button : dialog.findChildren<QPushButton*>())
            if (button->text().remove('&') == "Print")
                button->click();
        if (dialog.isVisible())
            dialog.reject();
    };
}

} // namespace driving
