#include "app/controls/focus_ring.h"

#include "app/controls/looks.h"
#include "app/controls/maker_link.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPainter>

FocusRing::FocusRing(QWidget* client) : QWidget(client)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* /*old*/, QWidget* now) { Follow(now); });
}

void FocusRing::Follow(const QWidget* now)
{
    const bool rings = parentWidget()->isAncestorOf(now) && (qobject_cast<const QAbstractButton*>(now) != nullptr ||
                                                             qobject_cast<const MakerLink*>(now) != nullptr);
    setVisible(rings);
    if (rings)
        setGeometry(QRect(now->mapTo(parentWidget(), QPoint()), now->size()));
    raise();
}

void FocusRing::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(QPen(looks::Focus, 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}
