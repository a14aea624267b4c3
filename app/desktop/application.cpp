#include "app/desktop/application.h"

#ifdef Q_OS_WIN
#include "app/desktop/whole_outlines_windows.h"
#endif

#include <QDialog>
#include <QKeyEvent>
#include <QMenuBar>
#include <QSettings>

void PrepareApplication()
{
#ifdef Q_OS_WIN
    QApplication::setStyle(NewWholeOutlines());
#else
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
    auto* window = object->isWidgetType() ? static_cast<QWidget*>(object) : nullptr;
    const bool dialog = qobject_cast<QDialog*>(window) != nullptr;
    if (dialog && event->type() == QEvent::Show)
        CloseMenus();
    // A layout request gives some dialogs their size. Until it is active, a window of a fixed size may float.
    const bool fixed = dialog ? event->type() == QEvent::ShowToParent || event->type() == QEvent::LayoutRequest
                              : event->type() == QEvent::WindowActivate;
    if (fixed && window != nullptr && window->isWindow() && QGuiApplication::platformName() == "wayland") {
        const auto setFree = [window, dialog] {
            window->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
            if (!dialog)
                window->setMinimumSize(0, 0);
        };
        QMetaObject::invokeMethod(window, setFree, Qt::QueuedConnection);
    }
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
        return false;
    if (event->type() == QEvent::KeyRelease) {
        Released = key->timestamp();
        return false;
    }
    // In a window that has just opened, X11's repeated keys look like new ones, but for the time of their release.
    return key->isAutoRepeat() || (key->timestamp() != 0 && key->timestamp() == Released);
}
