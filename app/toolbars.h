#pragma once

#include <QToolBar>

/// A button of a toolbar: its key, which is its action's name too, its picture's name in the resources, its
/// tip.
struct ToolbarButton {
    const char* key;
    const char* picture;
    const char* tip;
    QKeySequence::StandardKey keys = QKeySequence::UnknownKey; ///< that do the same; the tip tells of them
};

/// A toolbar of picture buttons across the top of `window`'s client area, 360 twips high; its buttons count
/// from 1, as ToolbarIndex tells. It cannot be moved or hidden.
QToolBar* MakeToolbar(const QString& name, const QString& accessibleName,
                      std::initializer_list<ToolbarButton> buttons, QWidget* client);

int ToolbarIndex(const QAction& action);
