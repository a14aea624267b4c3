#include "app/desktop/dialogs.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMenuBar>

namespace {

/// As the user would: a menu bar then gives the focus back.
void CloseMenus()
{
    while (QWidget* menu = QApplication::activePopupWidget())
        menu->close();
    if (qobject_cast<QMenuBar*>(QApplication::focusWidget()) != nullptr) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(QApplication::focusWidget(), &escape);
    }
}

} // namespace

bool CommandsMayStart()
{
    return QApplication::activeModalWidget() == nullptr;
}

bool AnyWindowMayGrow()
{
    return QGuiApplication::platformName() == "wayland";
}

DialogKeeper::DialogKeeper()
{
    qApp->installEventFilter(this);
}

bool DialogKeeper::eventFilter(QObject* object, QEvent* event)
{
    const bool shows = event->type() == QEvent::Show;
    const bool shown = event->type() == QEvent::ShowToParent; // by now a message box has fixed its size
    auto* dialog = shows || shown ? qobject_cast<QDialog*>(object) : nullptr;
    if (dialog != nullptr && shows)
        CloseMenus();
    if (dialog != nullptr && shown && AnyWindowMayGrow())
        dialog->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    return false;
}
