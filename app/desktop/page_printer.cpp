#include "app/desktop/page_printer.h"

#include "app/desktop/file_bytes.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

namespace {

constexpr int TwipsPerInch = 1440;
constexpr double TwipsPerPoint = 20;
constexpr double BoxPen = TwipsPerPoint / 2;

QString ToQString(std::u16string_view text)
{
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

PagePaper::PagePaper(const QString& name) : Device(QPrinter::HighResolution)
{
    Device.setDocName(name);
    Device.setCreator("Glyphgrove");
    Device.setFullPage(true);
}

std::optional<double> PagePaper::PageWidth()
{
    Device.setPageOrientation(QPageLayout::Portrait); // whatever was chosen
    // From the sheet's corner: printers of Windows count from their margins, full page or not.
    Device.setPageMargins({});
    const QSizeF sheet = Device.pageLayout().fullRect(QPageLayout::Point).size() * TwipsPerPoint;
    if (sheet.isEmpty())
        return std::nullopt;
    Scale = view::ScaleForSheet(sheet.width(), sheet.height());
    return sheet.width() / Scale;
}

std::optional<double> PagePaper::SetFont(const view::PageFont& font)
{
    CurrentFont = QFont(QString::fromUtf16(font.name));
    // A pixel of the font is a twip, so that its metrics are the same whatever the printer's own resolution.
    CurrentFont.setPixelSize(qRound(font.size * TwipsPerPoint));
    CurrentFont.setBold(font.bold);
    CurrentFont.setItalic(font.italic);
    CurrentFont.setHintingPreference(QFont::PreferNoHinting);
    return CurrentFont.pixelSize() / TwipsPerPoint;
}

std::optional<double> PagePaper::Measure(std::u16string_view text)
{
    return QFontMetricsF(CurrentFont).horizontalAdvance(ToQString(text));
}

bool PagePaper::Write(view::PagePoint position, std::u16string_view text)
{
    Texts.push_back({CurrentFont, {position.x, position.y}, ToQString(text)});
    return true;
}

bool PagePaper::DrawLine(view::PagePoint from, view::PagePoint to)
{
    Lines.emplace_back(from.x, from.y, to.x, to.y);
    return true;
}

bool PagePaper::EndDocument()
{
    if (Device.outputFormat() == QPrinter::PdfFormat)
        return WritePdf();
    Device.setResolution(TwipsPerInch); // the dialog or another printer may have set its own
    return PaintOn(Device);
}

/// A file that finds no room leaves nothing behind, and an earlier one of its name as it was.
bool PagePaper::WritePdf() const
{
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setPageLayout(Device.pageLayout());
    writer.setTitle(Device.docName());
    writer.setCreator(Device.creator());
    writer.setResolution(TwipsPerInch);
    return PaintOn(writer) && file_bytes::Save(Device.outputFileName(), file.data().toStdString());
}

bool PagePaper::PaintOn(QPaintDevice& device) const
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const double unitsPerTwip = Scale * device.logicalDpiX() / TwipsPerInch;
    painter.scale(unitsPerTwip, unitsPerTwip);
    painter.setPen(QPen(Qt::black, BoxPen, Qt::SolidLine, Qt::SquareCap));
    for (const QLineF& line : Lines)
        painter.drawLine(line);
    for (const Text& text : Texts) {
        painter.setFont(text.font);
        painter.drawText(text.topLeft + QPointF(0, QFontMetricsF(text.font).ascent()), text.text);
    }
    return painter.end();
}
