#pragma once

#include <QIcon>

/// The icons in the program's resources.
namespace icons {

/// A toolbar's icon: back, delete, new, open, print or save; 16 pixels, and denser for HiDPI screens.
QIcon ForToolbar(const QString& name);
QIcon OfProgram();

} // namespace icons
