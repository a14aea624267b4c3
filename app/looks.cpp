#include "app/looks.h"

#include <QScreen>
#include <QWidget>

namespace looks {

double ToPixels(const QWidget& widget, double twips)
{
    constexpr double TwipsPerInch = 1440;
    return twips * widget.logicalDpiX() / TwipsPerInch;
}

void Place(QWidget& widget, int x, int y, int width, int height)
{
    const auto pixels = [&widget](int twips) { return qRound(ToPixels(widget, twips)); };
    widget.setGeometry(pixels(x), pixels(y), pixels(width), pixels(height));
}

void FixSize(QWidget& widget, int width, int height)
{
    widget.setFixedSize(qRound(ToPixels(widget, width)), qRound(ToPixels(widget, height)));
}

void SetCaption(QWidget& window, QString text)
{
    window.setWindowTitle(text.replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

void Centre(QWidget& window)
{
    QRect frame = window.frameGeometry();
    frame.moveCenter(window.screen()->availableGeometry().center());
    window.move(frame.topLeft());
}

QFont Font(const QString& name, double points)
{
    QFont font(name);
    font.setPointSizeF(points);
    return font;
}

QFont BoldItalic(const QString& name, double points)
{
    QFont font = Font(name, points);
    font.setBold(true);
    font.setItalic(true);
    return font;
}

QPalette LightYellow()
{
    QPalette palette(QColor(236, 236, 228), QColor(255, 255, 192));
    palette.setColor(QPalette::Base, Qt::white);
    return palette;
}

QPalette OnWhite(const QColor& text)
{
    QPalette palette{QColor(Qt::white), QColor(Qt::white)};
    palette.setColor(QPalette::WindowText, text);
    return palette;
}

} // namespace looks
