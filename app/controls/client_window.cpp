#include "app/controls/client_window.h"

#include "app/controls/focus_ring.h"
#include "app/controls/looks.h"
#include "app/desktop/dialogs.h"

#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>

ClientWindow::ClientWindow(QScreen* screen) : Client(new QWidget)
{
    setScreen(screen);
    setPalette(looks::LightYellow());
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setAlignment(Qt::AlignCenter);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(Client);
    Client->setObjectName("client");
    setCentralWidget(area);
    // While the user drags a window, some window managers ignore requests for another size.
    Settled.setSingleShot(true);
    Settled.setInterval(200);
    connect(&Settled, &QTimer::timeout, this, &ClientWindow::FitToScreen);
}

void ClientWindow::FixClient(QSize size)
{
    Client->setFixedSize(size);
    looks::OutlineControls(*this);
    new FocusRing(Client);
    FitToScreen();
    Centre();
}

bool ClientWindow::MayGrow() const
{
    return windowFlags().testFlag(Qt::WindowMaximizeButtonHint) || AnyWindowMayGrow();
}

void ClientWindow::FitToScreen()
{
    const QSize room = screen()->availableSize() - (frameGeometry().size() - geometry().size());
    const int bar = static_cast<QScrollArea*>(centralWidget())->verticalScrollBar()->sizeHint().width();
    const int menu = menuWidget() != nullptr ? menuWidget()->heightForWidth(Client->width()) : 0;
    const QSize whole = Client->size() + QSize(0, menu);
    const QSize bars(whole.height() > room.height() ? bar : 0, whole.width() > room.width() ? bar : 0);
    NormalSize = (whole + bars).boundedTo(room);
    setMinimumSize(NormalSize);
    if (!MayGrow())
        setMaximumSize(NormalSize);
    else if (isVisible()) { // or the toolkit does not tell X11's window managers
        setBaseSize(NormalSize);
        setSizeIncrement(10'000, 10'000); // the user can drag the border in such steps only: not at all
    }
    if (!isMaximized() && !isFullScreen())
        resize(NormalSize);
}

void ClientWindow::Centre()
{
    QRect place(QPoint(), frameGeometry().size());
    place.moveCenter(screen()->availableGeometry().center());
    move(place.topLeft());
}

bool ClientWindow::event(QEvent* event)
{
    if (!FrameKnown && isVisible() && frameGeometry() != geometry()) {
        FrameKnown = true;
        FitToScreen();
        Centre();
    }
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        Settled.start(); // then back to the fixed size, or to what another screen has room for
    return QMainWindow::event(event);
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
