#include "driving/driving.h"

#include "app/desktop/folders.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QTest>
#include <QToolBar>

namespace driving {

namespace {

QString Describe(const QDialog& dialog)
{
    if (const auto* box = qobject_cast<const QMessageBox*>(&dialog))
        return box->windowTitle() + ": " + box->text();
    return dialog.objectName();
}

} // namespace

void PrepareApplication()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QStandardPaths::setTestModeEnabled(true);
    KeepNoSettings();
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
    if (!dialog->isActiveWindow()) {
        dialog->activateWindow(); // until then it takes keys and texts otherwise than before a user
        return;
    }
    Answered.removeAll(nullptr);
    Answered += dialog;
    if (Expected.empty()) {
        Seen += "unexpected " + Describe(*dialog);
        dialog->reject();
        return;
    }
    Seen += Describe(*dialog);
    // Not from here: an answer may bring up a further box, for which this timer has to go on.
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
        box.setFocus(); // without it the dialog keeps the file that it has selected
        box.setText(path);
        // The dialog takes a path as typed only from its box: its accept is that of the button.
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
        if (qobject_cast<QFileDialog*>(&dialog) != nullptr) { // all that some desktops ask without a printer
            ChooseFile(path)(dialog);
            return;
        }
        Find<QLineEdit>(dialog, "filename").setText(path);
        for (QPushButton* button : dialog.findChildren<QPushButton*>())
            if (button->text().remove('&') == "Print")
                button->click();
        if (dialog.isVisible())
            dialog.reject();
    };
}

} // namespace driving
