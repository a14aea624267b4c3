#pragma once

#include "app/desktop/file_dialog.h"

/// Runs Windows' own file dialog over `owner`. Returns the chosen path, or nothing when the user cancels. Opened
/// through the toolkit, this dialog would add an extension to every name without one and write its state to the
/// user's registry.
QString AskWindowsForFile(const FileDialog::Question& question, QWidget& owner);
