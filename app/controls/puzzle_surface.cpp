#include "app/controls/puzzle_surface.h"

#include "app/controls/looks.h"

#include <QFontMetricsF>
#include <QPainter>

#include <utility>

PuzzleSurface::PuzzleSurface(QWidget* parent) : QWidget(parent)
{
    setFont(looks::Font(looks::Monospaced, 8.25));
}

void PuzzleSurface::Write(const std::vector<view::DrawnLetter>& letters)
{
    Letters.insert(Letters.end(), letters.begin(), letters.end());
    update();
}

QStringList PuzzleSurface::Rows() const
{
    QStringList rows;
    double y = -1;
    for (const view::DrawnLetter& letter : Letters) {
        if (std::exchange(y, letter.y) == letter.y)
            rows.last().append(' ').append(QLatin1Char(letter.letter));
        else
            rows += QString(QLatin1Char(letter.letter));
    }
    return rows;
}

QRect PuzzleSurface::RowRect(int row) const
{
    const double spacing = view::GridSpacing(static_cast<int>(Rows().size()), height());
    return {mapToGlobal(QPoint(0, qRound(spacing * (row + 1)))), QSize(width(), qRound(spacing))};
}

void PuzzleSurface::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const double ascent = QFontMetricsF(font(), this).ascent();
    for (const view::DrawnLetter& letter : Letters) {
        const QPointF topLeft(looks::ToPixels(*this, letter.x), looks::ToPixels(*this, letter.y));
        painter.drawText(topLeft + QPointF(0, ascent), QString(QLatin1Char(letter.letter)));
    }
}
