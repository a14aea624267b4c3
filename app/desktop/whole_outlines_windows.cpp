#include "app/desktop/whole_outlines_windows.h"

#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

namespace {

class WholeOutlines : public QProxyStyle {
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        if (element != PE_Frame || frame == nullptr)
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
        const QTransform toPixels = painter->deviceTransform();
        QStyleOptionFrame whole(*frame);
        const QRectF exact = toPixels.mapRect(QRectF(frame->rect));
        whole.rect = QRect(exact.topLeft().toPoint(), exact.bottomRight().toPoint() - QPoint(1, 1));
        painter->save();
        painter->setTransform(toPixels.inverted(), true);
        QProxyStyle::drawPrimitive(element, &whole, painter, widget);
        painter->restore();
    }
};

} // namespace

QStyle* NewWholeOutlines() { return new WholeOutlines; }
