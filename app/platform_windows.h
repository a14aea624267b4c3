#pragma once

#include "app/widgets/puzzle_file_dialog.h"

/// What the program asks of the Windows desktop itself, past the toolkit.
namespace platform_windows {

/// Runs the desktop's file dialog over `owner`; `name` is the name, in `folder`, or the path that it shows at first.
/// The chosen path, or empty when the user cancelled. The toolkit's way to this dialog adds an extension to a name
/// without one and writes what it remembers to the user's registry.
QString AskForFile(QFileDialog::AcceptMode mode, const QList<PuzzleFileDialog::Filter>& filters, const QDir& folder, const QString& name,
                   QWidget& owner);

} // namespace platform_windows
