#include "app/controls/looks.h"

#include "view/twips.h"

#include <QApplication>
#include <QRegularExpression>
#include <QWidget>

namespace looks {

double ToPixels(const QWidget& widget, double twips) { return twips * widget.logicalDpiX() / view::TwipsPerInch; }

QSize SizeInPixels(const QWidget& widget, int width, int height)
{
    return {qRound(ToPixels(widget, width)), qRound(ToPixels(widget, height))};
}

void Place(QWidget& widget, int x, int y, int width, int height)
{
    const QSize corner = SizeInPixels(widget, x, y);
    widget.setGeometry({{corner.width(), corner.height()}, SizeInPixels(widget, width, height)});
}

void SetCaption(QWidget& window, QString text) { window.setWindowTitle(text.replace("[*]", "[*][*]")); }

QString ToolTip(QString text)
{
    constexpr int Longest = 600;
    static const QRegularExpression longWord("(\\S{40})");
    if (text.size() > Longest)
        text = text.left(Longest) + u'…';
    // The tags force rich text, which breaks lines, but only at spaces, and at those of no width.
    return QString("<span>%1</span>").arg(text.replace(longWord, "\\1\u200B").toHtmlEscaped());
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
    palette.setColor(QPalette::Highlight, Focus);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

void OutlineControls(const QWidget& window)
{
    for (QWidget* control : window.findChildren<QWidget*>()) {
        QPalette palette = control->palette();
        palette.setColor(QPalette::Window, QColor(176, 176, 140)); // styles draw borders in a darker shade of it
        for (const char* kind : {"QPushButton", "QLineEdit", "QListView", "QScrollBar"})
            if (control->inherits(kind))
                control->setPalette(palette);
    }
}

QPalette OnWhite(const QColor& text)
{
    QPalette palette{QColor(Qt::white), QColor(Qt::white)};
    palette.setColor(QPalette::WindowText, text);
    return palette;
}

} // namespace looks
