#pragma once

#include <QToolBar>

#include <functional>

struct ToolbarButton {
    const char* key; ///< its action's name; its icon's, too, in small letters
    QString tooltip;
};

/// A toolbar of icon buttons, called `name`, in a window's client area. It cannot be moved or hidden. `clicked` gets
/// a button's index, from 1, when it is pressed, by click or key, while no dialog is open.
QToolBar* MakeToolbar(const char* name, const QString& accessibleName, const std::vector<ToolbarButton>& buttons,
                      QWidget& client, const std::function<void(int index)>& clicked);
