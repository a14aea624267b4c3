#include "app/controls/client_window.h"

#include "app/controls/focus_ring.h"
#include "app/controls/looks.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QWindow>

namespace {

constexpr QMargins UsualFrame(2, 32, 2, 2); ///< about what window managers add, in pixels

} // namespace

ClientWindow::ClientWindow(QScreen* screen) : Client(new QWidget), Area(new QScrollArea)
{
    setScreen(screen);
    setPalette(looks::LightYellow());
    Area->setFrameShape(QFrame::NoFrame);
    Area->setAlignment(Qt::AlignCenter);
    Area->setFocusPolicy(Qt::NoFocus);
    Area->setWidget(Client);
    Client->setObjectName("client");
    setCentralWidget(Area);
}

void ClientWindow::FixClient(QSize size)
{
    Client->setFixedSize(size.expandedTo(Client->minimumSizeHint()));
    looks::OutlineControls(*this);
    new FocusRing(Client);
    FitToScreen();
    QRect place({}, Fitting.grownBy(UsualFrame));
    place.moveCenter(screen()->availableGeometry().center());
    move(place.topLeft()); // not setGeometry(): some window managers would show a hidden window in another place
}

void ClientWindow::ScrollWithArrows()
{
    for (const auto& [key, bar, action] :
         {std::tuple(Qt::Key_Left, Area->horizontalScrollBar(), QScrollBar::SliderSingleStepSub),
          {Qt::Key_Right, Area->horizontalScrollBar(), QScrollBar::SliderSingleStepAdd},
          {Qt::Key_Up, Area->verticalScrollBar(), QScrollBar::SliderSingleStepSub},
          {Qt::Key_Down, Area->verticalScrollBar(), QScrollBar::SliderSingleStepAdd}})
        connect(new QShortcut(key, this), &QShortcut::activated, bar,
                [bar = bar, action = action] { bar->triggerAction(action); });
}

/// Gives the window as much of the screen as it needs, unless the user or the window manager has chosen another size
/// that fits.
void ClientWindow::FitToScreen()
{
    connect(screen(), &QScreen::availableGeometryChanged, this, &ClientWindow::ReturnToScreen, Qt::UniqueConnection);
    const QSize room = screen()->availableSize().shrunkBy(Frame());
    const int menu = menuWidget() != nullptr ? menuWidget()->heightForWidth(Client->width()) : 0;
    QSize whole = Client->size() + QSize(0, menu);
    if (whole != whole.boundedTo(room)) {
        const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        whole += QSize(bar, bar);
    }
    const bool chosen = Fitting.isValid() && size() != Fitting && size() == size().boundedTo(room);
    Fitting = whole.boundedTo(room);
    if (chosen || isMaximized() || isFullScreen())
        return;
    FixSize();
    resize(Fitting);
}

QMargins ClientWindow::Frame() const { return isVisible() ? windowHandle()->frameMargins() : UsualFrame; }

/// Tiling window managers let a window of fixed size float.
void ClientWindow::FixSize()
{
    if (!windowFlags().testFlag(Qt::WindowMaximizeButtonHint))
        setFixedSize(Fitting);
}

/// The screen may now be smaller than the place of the window.
void ClientWindow::ReturnToScreen()
{
    FitToScreen();
    const QRect room = screen()->availableGeometry().marginsRemoved(Frame());
    const QPoint corner = geometry().topLeft();
    const QPoint last = room.bottomRight() - QPoint(width() - 1, height() - 1);
    const QPoint place(std::max(std::min(corner.x(), last.x()), room.x()),
                       std::max(std::min(corner.y(), last.y()), room.y()));
    if (place != corner && !isMaximized() && !isFullScreen())
        setGeometry({place, size()});
    QTimer::singleShot(500, this, &ClientWindow::AcceptSize);
}

/// When a tiling window manager keeps its size, the toolkit may leave the widgets with the size that they asked for.
void ClientWindow::AcceptSize()
{
    if (!isVisible() || windowHandle()->size() == size())
        return;
    QResizeEvent real(windowHandle()->size(), size());
    QGuiApplication::sendEvent(windowHandle(), &real);
}

void ClientWindow::showEvent(QShowEvent* /*event*/)
{
    connect(windowHandle(), &QWindow::screenChanged, this, &ClientWindow::FitToScreen, Qt::UniqueConnection);
    FixSize(); // under Wayland it was free to grow
}

/// Return presses a toolbar button, as it does other buttons.
void ClientWindow::keyPressEvent(QKeyEvent* event)
{
    auto* button = qobject_cast<QToolButton*>(focusWidget());
    if (button != nullptr && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        button->click();
    else
        QMainWindow::keyPressEvent(event);
}
