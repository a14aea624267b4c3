#include "app/desktop/whole_outlines_windows.h"

#include <QPainter>
#include <QProxyStyle>

namespace {

class WholeOutlines : public QProxyStyle {
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        const QTransform toPixels = painter->deviceTransform();
        QPointF shift;
        if (element == PE_Frame || element == PE_FrameLineEdit)
            shift = toPixels.inverted().map(toPixels.map(QPointF()).toPoint().toPointF());
        painter->translate(shift);
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        painter->translate(-shift);
    }
};

} // namespace

QStyle* NewWholeOutlines() { return new WholeOutlines; }
