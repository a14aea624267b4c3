#pragma once

#include "view/printed_page.h"

#include <QPrinter>

/// Prints a puzzle's page, upright and on the whole sheet, on `printer` or into its PDF file. The page is laid out
/// before printing starts. False when the printer fails; an earlier PDF file is then unchanged.
bool PrintPage(QPrinter& printer, const QString& title, std::span<const std::u16string> words,
               const generator::PuzzleWorkspace& workspace);
