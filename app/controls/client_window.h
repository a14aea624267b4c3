#pragma once

#include <QMainWindow>

class QScrollArea;

/// A window around a client area of fixed size, centred on the screen when first shown. In a larger window the client
/// area stays in the middle; in a smaller one it scrolls. Once shown, the window keeps the size and place that user
/// and window manager give it, unless its screen changes.
class ClientWindow : public QMainWindow {
    Q_OBJECT

protected:
    /// Opens on `screen`, or on the primary one.
    explicit ClientWindow(QScreen* screen = nullptr);

    /// Fixes the size of the client area, in pixels: `size`, or more where its layout needs more. Call it when all
    /// controls are in place.
    void FixClient(QSize size);
    /// Lets the arrow keys scroll the client area, for a window whose controls do not need them.
    void ScrollWithArrows();

    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    QWidget* Client; ///< the parent of the window's controls

private:
    void FitToScreen();
    QMargins Frame() const; ///< around the window; a usual one before it is shown
    void FixSize();
    void ReturnToScreen();
    void AcceptSize();

    QScrollArea* Area;
    QSize Fitting; ///< of the window without its frame: as large as client area and screen allow
};
