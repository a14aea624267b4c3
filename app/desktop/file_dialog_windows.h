#pragma once

#include "app/desktop/file_dialog.h"

/// Runs Windows' own file dialog over `owner`; it first shows `name`, a name in `folder` or a path. Returns the
/// chosen path, or nothing when the user cancels. The toolkit's way to this dialog adds an extension to a name
/// without one and writes its state to the user's registry.
QString AskWindowsForFile(QFileDialog::AcceptMode mode, const QList<FileDialog::Filter>& filters, const QDir& folder,
                          const QString& name, QWidget& owner);
