#pragma once

#include "app/desktop/file_dialog.h"

/// Runs Windows' own file dialog over `owner`. Returns the chosen path, or nothing when the user cancels. The
/// toolkit's way to this dialog adds an extension to every name without one and writes its state to the user's
/// registry.
QString AskWindowsForFile(const FileDialog::Question& question, QWidget& owner);
