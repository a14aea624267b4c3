#pragma once

#include <QFont>
#include <QPalette>
#include <QRect>

class QWidget;

/// Measures, fonts and colours that the windows have in common.
namespace looks {

inline const QString Serif = "Times New Roman";
inline const QString Monospaced = "Courier New";

/// Twips (1/1440 inch) in pixels of `widget`, fractions kept: windows grow with their fonts.
double ToPixels(const QWidget& widget, double twips);

/// Places `widget` in its parent, all in twips, times `scale`.
void Place(QWidget& widget, int x, int y, int width, int height, double scale = 1);

/// A size in twips, in pixels of `widget`.
QSize SizeInPixels(const QWidget& widget, int width, int height, double scale = 1);

/// How much larger than stated a window is to be drawn so that texts in the interface's font have as much room as
/// at its usual size.
double ScaleForFont(const QWidget& widget);

/// Sets the caption of `window` to `text` as it stands: "[*]" is a placeholder to the toolkit.
void SetCaption(QWidget& window, QString text);

QFont Font(const QString& name, double points);
QFont BoldItalic(const QString& name, double points);

/// Light yellow with dark text of its own, so that no desktop theme can make it unreadable; boxes and lists
/// are white.
QPalette LightYellow();
/// Gives the boxes, buttons, lists and scroll bars of a window outlines with a contrast of 3 : 1 against the ground.
void OutlineControls(const QWidget& window);
/// A white ground with dark text of the given colour.
QPalette OnWhite(const QColor& text);
inline const QColor MakerRed(128, 0, 0);
inline const QColor Focus(0, 60, 140); ///< 7 : 1 against the light yellow, 6 : 1 against buttons

} // namespace looks
