#pragma once

#include <QIcon>

/// The program's own pictures, from its resources.
namespace icons {

/// A toolbar's picture: back, delete, new, open, print or save, for 16 pixels and denser screens.
QIcon ForToolbar(const QString& name);
QIcon OfProgram();

} // namespace icons
