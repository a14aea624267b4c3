#include "app/widgets/title_label.h"

#include <QPainter>

namespace {

constexpr double SmallestPoints = 7;
constexpr qsizetype LongestShown = 300; ///< characters; more has no room in any title's label

bool Fits(const QFont& font, const QRect& room, int flags, const QString& text)
{
    const QRect needed = QFontMetrics(font).boundingRect(room, flags, text);
    return needed.width() <= room.width() && needed.height() <= room.height();
}

} // namespace

void TitleLabel::paintEvent(QPaintEvent* /*event*/)
{
    const int flags = static_cast<int>(alignment()) | Qt::TextWordWrap | Qt::TextWrapAnywhere;
    QString shown = text().left(LongestShown);
    QFont smaller = font();
    while (smaller.pointSizeF() > SmallestPoints && !Fits(smaller, rect(), flags, shown))
        smaller.setPointSizeF(smaller.pointSizeF() - 0.25);
    while (!shown.isEmpty() && !Fits(smaller, rect(), flags, shown))
        shown = shown.chopped(shown.endsWith(u'…') ? 2 : 1) + u'…';
    setToolTip(shown == text() ? QString() : QStringLiteral("<span>%1</span>").arg(text().toHtmlEscaped()));
    QPainter painter(this);
    painter.setFont(smaller);
    painter.drawText(rect(), flags, shown);
}
