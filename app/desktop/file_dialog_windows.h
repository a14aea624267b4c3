#pragma once

#include "app/desktop/file_dialog.h"

/// What the program asks of the Windows desktop itself, past the toolkit.
namespace file_dialog_windows {

/// Runs the desktop's file dialog over `owner`; `name` is the name, in `folder`, or the path that it shows at first.
/// The chosen path, or empty when the user cancelled. The toolkit's way to this dialog adds an extension to a name
/// without one and writes what it remembers to the user's registry.
QString AskForFile(QFileDialog::AcceptMode mode, const QList<FileDialog::Filter>& filters, const QDir& folder,
                   const QString& name, QWidget& owner);

} // namespace file_dialog_windows
