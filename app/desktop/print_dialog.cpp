#include "app/desktop/print_dialog.h"

#include "app/desktop/file_dialog.h"
#include "app/desktop/folders.h"
#include "app/desktop/program.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>

namespace {

const QString DialogName = "PrinterDialog";

/// Named after the document, without the characters that file names cannot hold on every system.
QString ProposedPdf(const QString& title)
{
    static const QRegularExpression forbidden(R"([\x01-\x1f/\\:*?"<>|])");
    const QString name = title.left(60).replace(forbidden, "-").trimmed();
    return UsersDocuments().filePath((name.isEmpty() ? program::NewPuzzle : name) + ".pdf");
}

#ifdef Q_OS_WIN
/// Without a printer, Windows has no print dialog to show.
bool AskForPdf(QPrinter& printer, QWidget& owner)
{
    const QList<FileDialog::Filter> filters{{"PDF Files (*.pdf)", "*.pdf"}};
    const QString path = FileDialog::Ask({QFileDialog::AcceptSave, QObject::tr("Print to PDF"), filters,
                                          UsersDocuments(), ProposedPdf(printer.docName()), "pdf", DialogName},
                                         &owner);
    printer.setOutputFileName(path);
    printer.setOutputFormat(QPrinter::PdfFormat); // whatever the name
    return !path.isEmpty();
}
#endif

} // namespace

bool RunPrintDialog(QPrinter& printer, QWidget& owner)
{
#ifdef Q_OS_WIN
    if (printer.outputFormat() == QPrinter::PdfFormat)
        return AskForPdf(printer, owner);
#else
    printer.setOutputFileName(ProposedPdf(printer.docName()));
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        printer.setOutputFormat(QPrinter::NativeFormat); // the file is only a proposal
#endif
    QPrintDialog dialog(&printer, &owner);
    dialog.setObjectName(DialogName);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog.setOption(QAbstractPrintDialog::PrintCollateCopies, false);
    return dialog.exec() == QDialog::Accepted;
}
