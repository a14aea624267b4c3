#include "app/controls/puzzle_surface.h"

#include "app/controls/looks.h"

#include <QFontMetricsF>
#include <QPainter>

#include <utility>

PuzzleSurface::PuzzleSurface(QWidget* parent) : QWidget(parent) { setFont(looks::Font(looks::Monospaced, 8.25)); }

void PuzzleSurface::Write(std::vector<view::DrawnLetter> letters)
{
    Letters = std::move(letters);
    QWidget* row = nullptr;
    double y = 0;
    for (const view::DrawnLetter& letter : Letters) {
        if (std::exchange(y, letter.y) != letter.y || row == nullptr) {
            row = new QWidget(this);
            row->setGeometry(0, qRound(looks::ToPixels(*this, letter.y)), width(),
                             qRound(looks::ToPixels(*this, Letters.front().y)));
        }
        row->setAccessibleName((row->accessibleName() + ' ' + QLatin1Char(letter.letter)).trimmed());
    }
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
