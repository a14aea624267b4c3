#pragma once

class QPrinter;
class QWidget;

/// Shows the desktop's print dialog over `owner`, which sets up `printer`. False when the user cancels. For printing
/// to a file it proposes a PDF in the user's documents folder, named after the document.
bool RunPrintDialog(QPrinter& printer, QWidget& owner);
