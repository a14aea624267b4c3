#include "app/page_printer.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>

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
    Device.setCreator(QStringLiteral("Glyphgrove"));
    Device.setFullPage(true);
    Device.setFontEmbeddingEnabled(true);
}

std::optional<double> PagePaper::PageWidth()
{
    const double points = Device.pageLayout().fullRect(QPageLayout::Point).width();
    return points > 0 ? std::optional(points * TwipsPerPoint) : std::nullopt;
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
    Device.setResolution(TwipsPerInch); // the dialog or another printer may have set its own
    QPainter painter;
    if (!painter.begin(&Device))
        return false;
    const double unitsPerTwip = static_cast<double>(Device.logicalDpiX()) / TwipsPerInch;
    painter.scale(unitsPerTwip, unitsPerTwip);
    Paint(painter);
    return painter.end() && Device.printerState() != QPrinter::Error;
}

void PagePaper::Paint(QPainter& painter) const
{
    painter.setPen(QPen(Qt::black, BoxPen, Qt::SolidLine, Qt::SquareCap));
    for (const QLineF& line : Lines)
        painter.drawLine(line);
    for (const Text& text : Texts) {
        painter.setFont(text.font);
        painter.drawText(text.topLeft + QPointF(0, QFontMetricsF(text.font).ascent()), text.text);
    }
}
