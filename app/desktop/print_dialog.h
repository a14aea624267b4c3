#pragma once

class QPrinter;
class QWidget;

/// Shows the desktop's print dialog over `owner` and lets it settle `printer`. False when the user cancelled.
/// To those who print to a file, and where there is no printer at all, it proposes a PDF named after the
/// document in the user's documents folder.
bool RunPrintDialog(QPrinter& printer, QWidget& owner);
