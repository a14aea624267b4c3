#pragma once

#include "view/printed_page.h"

#include <QPrinter>

/// Prints a puzzle's page, upright and on the whole sheet, on `printer` or into its PDF file. The page is laid out
/// before the printer sees any of it, so half a page never reaches paper. False when the printer fails; a PDF file
/// that was there before is then still what it was.
bool PrintPage(QPrinter& printer, const QString& title, std::span<const std::u16string> words,
               const generator::PuzzleWorkspace& workspace);
