#pragma once

#include <QApplication>

/// False while a dialog is open. Keys pressed before it opened can still reach the window below it.
inline bool CommandsMayStart()
{
    return QApplication::activeModalWidget() == nullptr;
}

/// Looks after every dialog that opens during its lifetime, including the toolkit's own. It closes open menus, which
/// would keep the keyboard. Under Wayland it lets dialogs grow: some compositors offer to maximise them and kill a
/// program whose window then keeps its size.
class DialogKeeper : public QObject {
public:
    DialogKeeper() { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};

/// Whether the desktop may maximise windows that do not offer it.
inline bool AnyWindowMayGrow()
{
    return QGuiApplication::platformName() == "wayland";
}
