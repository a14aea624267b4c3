#include "app/controls/title_label.h"

#include "app/controls/looks.h"
#include "document/character_set.h"

#include <QPainter>

namespace {

constexpr double SmallestPoints = 7;
constexpr qsizetype LongestShown = 300; ///< characters; no label has room for more

/// Lines break between words, and inside a word that is wider than the label.
bool Fits(QPainter& painter, const QRect& room, const QString& text, const QTextOption& lines)
{
    const QRectF needed = painter.boundingRect(room, text, lines);
    return needed.width() <= room.width() && needed.height() <= room.height();
}

} // namespace

TitleLabel::TitleLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void TitleLabel::SetTitle(const QString& title)
{
    setText(title);
    setToolTip(title.size() > document::MaxTitleLength ? looks::ToolTip(title) : QString());
}

void TitleLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QTextOption lines(alignment());
    lines.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QString shown = text().left(LongestShown);
    QFont smaller = font();
    while (smaller.pointSizeF() > SmallestPoints && !Fits(painter, rect(), shown, lines)) {
        smaller.setPointSizeF(smaller.pointSizeF() - 0.25);
        painter.setFont(smaller);
    }
    while (!shown.isEmpty() && !Fits(painter, rect(), shown, lines))
        shown = shown.chopped(shown.endsWith(u'…') ? 2 : 1) + u'…';
    painter.drawText(rect(), shown, lines);
}
