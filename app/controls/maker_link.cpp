#include "app/controls/maker_link.h"

#include "app/controls/looks.h"
#include "app/desktop/program.h"

#include <QBoxLayout>
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
    label.setContentsMargins(0, 0, 2, 0); // slanted letters reach beyond their width
}

} // namespace

MakerLink::MakerLink(double points, QWidget* parent) : QLabel(program::Maker, parent)
{
    LookLikeTheMaker(*this, looks::BoldItalic(looks::Serif, points));
    setAccessibleName(tr("%1 website").arg(program::Maker));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
}

void MakerLink::OpenMakersPage() { QDesktopServices::openUrl(QUrl(program::MakerAddress)); }

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

QLayout* WithTrademark(MakerLink& link, const QFont& font)
{
    auto* trademark = new QLabel("TM", link.parentWidget());
    trademark->setObjectName("lblTM");
    LookLikeTheMaker(*trademark, font);
    trademark->setAlignment(Qt::AlignTop);
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(&link);
    row->addWidget(trademark);
    return row;
}
