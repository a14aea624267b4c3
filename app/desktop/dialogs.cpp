#include "app/desktop/dialogs.h"

#include <QDialog>
#include <QKeyEvent>
#include <QMenuBar>

namespace {

/// Closes menus like the user would: the menu bar then gives the focus back.
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

bool DialogKeeper::eventFilter(QObject* object, QEvent* event)
{
    const bool shows = event->type() == QEvent::Show;
    const bool fixesItsSize = event->type() == QEvent::ShowToParent || event->type() == QEvent::LayoutRequest;
    auto* dialog = shows || fixesItsSize ? qobject_cast<QDialog*>(object) : nullptr;
    if (dialog != nullptr && shows)
        CloseMenus();
    if (dialog != nullptr && fixesItsSize && AnyWindowMayGrow()) {
        const auto letGrow = [dialog] { dialog->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX); };
        QMetaObject::invokeMethod(dialog, letGrow, Qt::QueuedConnection);
    }
    return false;
}
