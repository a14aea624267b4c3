#include "app/desktop/page_printer.h"

#include "app/desktop/file_bytes.h"
#include "view/twips.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

namespace {

using view::TwipsPerInch;
using view::TwipsPerPoint;

constexpr double BoxPen = TwipsPerPoint / 2;

/// One pixel of the font is one twip, so its metrics do not depend on the printer's resolution.
QFont ToQFont(const view::PageFont& font)
{
    QFont there(QString::fromUtf16(font.name));
    there.setPixelSize(qRound(font.size * TwipsPerPoint));
    there.setBold(font.bold);
    there.setItalic(font.italic);
    there.setHintingPreference(QFont::PreferNoHinting);
    return there;
}

bool Draw(const view::Page& page, double scale, QPaintDevice& device)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const double unitsPerTwip = scale * device.logicalDpiX() / TwipsPerInch;
    painter.scale(unitsPerTwip, unitsPerTwip);
    painter.setPen(QPen(Qt::black, BoxPen, Qt::SolidLine, Qt::SquareCap));
    const auto& [left, top, right, bottom] = page.box;
    for (const QLineF& side : {QLineF(left, top, right, top), QLineF(right, top, right, bottom),
                               QLineF(right, bottom, left, bottom), QLineF(left, bottom, left, top)})
        painter.drawLine(side);
    view::PageFont font{};
    double ascent = 0;
    for (const view::PageText& text : page.texts) {
        if (text.font != font) {
            font = text.font;
            painter.setFont(ToQFont(font));
            ascent = QFontMetricsF(painter.font()).ascent();
        }
        painter.drawText(QPointF(text.x, text.y + ascent), QString::fromStdU16String(text.text));
    }
    return painter.end();
}

bool WritePdf(const view::Page& page, double scale, const QPrinter& printer)
{
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setPageLayout(printer.pageLayout());
    writer.setTitle(printer.docName());
    writer.setCreator("Glyphgrove");
    writer.setResolution(TwipsPerInch);
    return Draw(page, scale, writer) && file_bytes::Save(printer.outputFileName(), file.data());
}

} // namespace

bool PrintPage(QPrinter& printer, const QString& title, std::span<const std::u16string> words,
               const generator::PuzzleWorkspace& workspace)
{
    printer.setFullPage(true);
    printer.setPageOrientation(QPageLayout::Portrait); // whatever the user chose
    printer.setPageMargins({}); // on Windows, printers count from their margins even on a full page
    const QSizeF sheet = printer.pageLayout().fullRect(QPageLayout::Point).size() * TwipsPerPoint;
    if (sheet.isEmpty())
        return false;
    const double scale = view::ScaleForSheet(sheet.width(), sheet.height());
    const view::PageMetrics metrics{
        sheet.width() / scale, [](const view::PageFont& font) { return ToQFont(font).pixelSize() / TwipsPerPoint; },
        [](const view::PageFont& font, std::u16string_view text) {
            return QFontMetricsF(ToQFont(font)).horizontalAdvance(QStringView(text).toString());
        }};
    const view::Page page = view::LayOutPage(metrics, title.toStdU16String(), words, workspace);
    if (printer.outputFormat() == QPrinter::PdfFormat)
        return WritePdf(page, scale, printer);
    printer.setResolution(TwipsPerInch); // the dialog may have set another
    return Draw(page, scale, printer);
}
