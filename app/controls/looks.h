#pragma once

#include <QFont>
#include <QPalette>
#include <QSize>

class QWidget;

/// Measures, fonts and colours that the windows share.
namespace looks {

inline const QString Serif = "Times New Roman";
inline const QString Monospaced = "Courier New";

/// Converts twips (1/1440 inch) to pixels of `widget`, with fractions: windows grow with their fonts.
double ToPixels(const QWidget& widget, double twips);

/// Sets the geometry of `widget` in its parent, in twips.
void Place(QWidget& widget, int x, int y, int width, int height);

/// Converts a size in twips to pixels of `widget`.
QSize SizeInPixels(const QWidget& widget, int width, int height);

/// Sets the caption of `window`, unchanged even where it holds "[*]", a placeholder to the toolkit.
void SetCaption(QWidget& window, QString text);

/// A tooltip that shows `text` as it stands, in lines of a width that suits a screen; of an endless text, the start.
QString ToolTip(QString text);

QFont Font(const QString& name, double points);
QFont BoldItalic(const QString& name, double points);

/// Light yellow with its own dark text, so that no desktop theme can make it unreadable; boxes and lists are white.
QPalette LightYellow();
/// Gives boxes, buttons, lists and scroll bars of `window` outlines with a contrast of 3 : 1.
void OutlineControls(const QWidget& window);
/// A white background with text of the given colour.
QPalette OnWhite(const QColor& text);
inline const QColor MakerRed(128, 0, 0);
inline const QColor Focus(0, 60, 140); ///< 7 : 1 against the light yellow, 6 : 1 against buttons

} // namespace looks
