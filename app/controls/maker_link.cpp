#include "app/controls/maker_link.h"

#include "app/controls/looks.h"
#include "app/program.h"

#include <QDesktopServices>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QUrl>

namespace {

void LookLikeTheMaker(QLabel& label, const QFont& font)
{
    label.setFont(font);
    label.setPalette(looks::OnWhite(looks::MakerRed));
    label.setAutoFillBackground(true);
}

} // namespace

MakerLink::MakerLink(double points, QWidget* parent) : QLabel(program::Maker, parent)
{
    LookLikeTheMaker(*this, looks::BoldItalic(looks::Serif, points));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
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

void PlaceTrademark(MakerLink& link, const QFont& font)
{
    auto* trademark = new QLabel("TM", link.parentWidget());
    trademark->setObjectName("lblTM");
    LookLikeTheMaker(*trademark, font);
    link.resize(link.sizeHint() + QSize(2, 0));
    trademark->setGeometry(link.geometry().right() + 1, link.y(), trademark->sizeHint().width(), link.height());
    trademark->setAlignment(Qt::AlignTop);
}
