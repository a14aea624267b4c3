#pragma once

#include <QMainWindow>
#include <QTimer>

/// A window around a client area of fixed size, centred on the screen when first shown. On a smaller screen the
/// client area scrolls; in a larger window, such as a maximised one, it stays in the middle.
class ClientWindow : public QMainWindow {
    Q_OBJECT

protected:
    /// Opens on `screen`, or on the primary one.
    explicit ClientWindow(QScreen* screen = nullptr);

    /// Sets the size of the client area, in pixels. Call it when all controls are in place.
    void FixClient(QSize size);

    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    QWidget* Client; ///< the parent of the window's controls

private:
    void FitToScreen();
    void Centre();
    bool MayGrow() const;

    QTimer Settled;          ///< fires when the window has not moved for a moment
    QSize NormalSize;        ///< of the window without its frame
    bool FrameKnown = false; ///< the window manager has added its frame
};
