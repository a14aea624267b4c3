#include "app/widgets/puzzle_surface.h"

#include "app/looks.h"

#include <QFontMetricsF>
#include <QPainter>

PuzzleSurface::PuzzleSurface(QWidget* parent) : QWidget(parent)
{
    setFont(looks::Font(looks::Monospaced, 8.25));
}

void PuzzleSurface::Draw(const std::vector<view::DrawnLetter>& letters)
{
    Letters.insert(Letters.end(), letters.begin(), letters.end());
    update();
}

QString PuzzleSurface::Rows() const
{
    QString rows;
    const view::DrawnLetter* previous = nullptr;
    for (const view::DrawnLetter& letter : Letters) {
        if (previous != nullptr)
            rows += letter.y != previous->y ? '\n' : ' ';
        rows += QLatin1Char(letter.letter);
        previous = &letter;
    }
    return rows;
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
