#pragma once

#include <QObject>

/// Whether a command may start: not while a box or a dialog is open. Keys that were pressed before it came up can
/// still reach the window below it.
bool CommandsMayStart();

/// Sees to every dialog that opens while it lives, the toolkit's own among them. A menu that is open closes: it would
/// keep the keyboard. Under Wayland a dialog may grow: some compositors offer to maximise it, and end a program whose
/// window does not follow.
class DialogKeeper : public QObject {
public:
    DialogKeeper();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};

/// Whether the desktop may maximise any window, whatever the window says.
bool AnyWindowMayGrow();
