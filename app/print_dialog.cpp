#include "app/print_dialog.h"

#include "app/folders.h"
#include "document/file_name.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace {

QString ProposedPdf(const QString& title)
{
    return DocumentsFolder().filePath(QString::fromStdU16String(document::FileNameFor(title.toStdU16String())) +
                                      QStringLiteral(".pdf"));
}

} // namespace

bool RunPrintDialog(QPrinter& printer, QWidget& owner)
{
    printer.setOutputFileName(ProposedPdf(printer.docName()));
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        printer.setOutputFormat(QPrinter::NativeFormat); // the file is only proposed
    QPrintDialog dialog(&printer, &owner);
    dialog.setObjectName(QStringLiteral("PrinterDialog"));
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog.setOption(QAbstractPrintDialog::PrintCollateCopies, false);
    dialog.setMinMax(1,
                     1); // there is one page to choose from, where a desktop offers the choice all the same
    return dialog.exec() == QDialog::Accepted;
}
