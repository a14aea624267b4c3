#include "app/desktop/application.h"

#include <QDialog>
#include <QKeyEvent>
#include <QMenuBar>
#include <QSettings>

void PrepareApplication()
{
#ifndef Q_OS_WIN
    QApplication::setStyle("Fusion"); // others paint buttons in colours that do not suit the windows' own
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // others list recent files, add suffixes, cut labels
#endif
    // The toolkit's file dialog writes settings: to a place that can hold no file, even if the program is killed.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
}

void CloseMenus()
{
    while (QWidget* menu = QApplication::activePopupWidget())
        menu->close();
    if (qobject_cast<QMenuBar*>(QApplication::focusWidget()) != nullptr) { // gives the focus back on Escape only
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(QApplication::focusWidget(), &escape);
    }
}

bool WindowKeeper::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Show:
        if (qobject_cast<QDialog*>(object) != nullptr)
            CloseMenus();
        return false;
    case QEvent::ShowToParent:
    case QEvent::LayoutRequest: // gives some dialogs their size
        if (auto* window = qobject_cast<QWidget*>(object);
            window != nullptr && window->isWindow() && QGuiApplication::platformName() == "wayland") {
            const auto letGrow = [window] { window->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX); };
            QMetaObject::invokeMethod(window, letGrow, Qt::QueuedConnection);
        }
        return false;
    case QEvent::KeyPress: {
        const auto* press = static_cast<QKeyEvent*>(event);
        return press->isAutoRepeat() && (press->key() == Qt::Key_Return || press->key() == Qt::Key_Enter);
    }
    default:
        return false;
    }
}
