#include "app/widgets/maker_link.h"

#include "app/looks.h"
#include "app/program.h"

#include <QDesktopServices>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QUrl>

namespace {

void LookLikeTheMaker(QLabel& label, const QFont& font)
{
    label.setFont(font);
    label.setPalette(looks::OnWhite(looks::MakerRed));
    label.setAutoFillBackground(true);
    label.setTextFormat(Qt::PlainText);
}

} // namespace

MakerLink::MakerLink(double points, QWidget* parent) : QLabel(program::Maker, parent)
{
    LookLikeTheMaker(*this, looks::BoldItalic(looks::Serif, points));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(tr("%1 website").arg(program::Maker));
}

void MakerLink::OpenMakersPage()
{
    QDesktopServices::openUrl(QUrl(program::MakerAddress));
}

void MakerLink::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        OpenMakersPage();
}

void MakerLink::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space)
        OpenMakersPage();
    else
        QLabel::keyPressEvent(event);
}

void MakerLink::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(QPen(looks::MakerRed, 1, Qt::DotLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

QLabel* MakeTrademark(const QFont& font, QWidget* parent)
{
    auto* trademark = new QLabel(QStringLiteral("TM"), parent);
    trademark->setObjectName(QStringLiteral("lblTM"));
    LookLikeTheMaker(*trademark, font);
    return trademark;
}
