#pragma once

#include <QApplication>

/// Prepares what the whole program shares: the toolkit's own style and dialogs where the desktop's would change
/// colours or names, and no settings on disk. Call it once the application exists: that reads the user's style.
void PrepareApplication();

/// Returns a function that runs `command`, but not while a dialog is open: keys pressed before it opened and
/// assistive technology can still reach the window below.
template <class Command>
auto Guarded(Command command)
{
    return [command](const auto&... arguments) {
        if (QApplication::activeModalWidget() == nullptr)
            command(arguments...);
    };
}

/// Answers the desktop's session, which asks when it ends and whenever it wants everything saved. `mayEnd` asks the
/// user, if the session allows that, and is false to keep the session from ending.
template <class Session, class Decision>
void AnswerSession(Session& session, Decision mayEnd)
{
    session.setRestartHint(Session::RestartNever);
    if (!session.allowsInteraction())
        return;
    if (!mayEnd())
        session.cancel();
    session.release();
}

/// Closes open menus like the user would. An open menu would keep the keyboard from a dialog.
void CloseMenus();

/// Looks after all windows during its lifetime, the toolkit's own dialogs among them. It closes menus when a dialog
/// opens. It drops Return keys that repeat, which would press one button after the other. Under Wayland it lets
/// windows of a fixed size grow once they are shown: some compositors offer to maximise them and kill a program whose
/// window then keeps its size.
class WindowKeeper : public QObject {
public:
    WindowKeeper() { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    quint64 Released = 0; ///< when Return was last released, in milliseconds
};
