#pragma once

#include <QMainWindow>
#include <QTimer>

/// A window around a client area of fixed size, centred on the screen when first shown. Where the screen has less
/// room, the client area scrolls; where the window manager gives the window more, as when maximised, its contents
/// stay as they are, in the middle.
class ClientWindow : public QMainWindow {
    Q_OBJECT

protected:
    /// Will be centred on `screen`, or on the primary one.
    explicit ClientWindow(QScreen* screen = nullptr);

    /// Gives the client area its size in pixels, once everything stands in it.
    void FixClient(QSize size);

    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    QWidget* Client; ///< what the window's controls stand in

private:
    void FitToScreen();
    void Centre();
    bool MayGrow() const;

    QTimer Settled;          ///< when the window has not been moved for a moment
    QSize NormalSize;        ///< of the window without its frame
    bool FrameKnown = false; ///< the window manager has told what it adds
};
