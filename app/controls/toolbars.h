#pragma once

#include <QToolBar>

#include <functional>

struct ToolbarButton {
    const char* key; ///< the name of its action and, in lower case, of its icon
    QString tooltip;
};

/// A toolbar of icon buttons in a window's client area, with `name` as its object name. It cannot be moved or hidden.
/// `clicked` gets the index, from 1, of the button that the user presses while no dialog is open.
QToolBar* MakeToolbar(const char* name, const QString& accessibleName, const std::vector<ToolbarButton>& buttons,
                      QWidget& client, const std::function<void(int index)>& clicked);
