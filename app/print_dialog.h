#pragma once

class QPrinter;
class QWidget;

/// Shows the desktop's print dialog over `owner` and lets it settle `printer`. False when the user cancelled.
/// Where there is no printer at all, the dialog proposes a PDF file named after the document.
bool RunPrintDialog(QPrinter& printer, QWidget& owner);
