#include "app/widgets/client_window.h"

#include "app/looks.h"
#include "app/widgets/focus_ring.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>

namespace {

/// Asks for the size of what it shows, however large.
class ClientArea : public QScrollArea {
public:
    QSize sizeHint() const override { return widget()->size(); }
};

} // namespace

ClientWindow::ClientWindow() : Client(new QWidget)
{
    setPalette(looks::LightYellow());
    auto* area = new ClientArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(Client);
    Client->setObjectName(QStringLiteral("client"));
    setCentralWidget(area);
}

void ClientWindow::FixClient(QSize size)
{
    Client->setFixedSize(size);
    new FocusRing(Client);
    FitToScreen();
}

/// Wayland's window managers offer every window to be maximised, and end a program whose window does not follow.
bool ClientWindow::MayGrow() const
{
    return windowFlags().testFlag(Qt::WindowMaximizeButtonHint) ||
           QGuiApplication::platformName() == QLatin1String("wayland");
}

void ClientWindow::FitToScreen()
{
    const QSize frame = frameGeometry().size() - geometry().size();
    const QRect available = screen()->availableGeometry();
    const QSize room = available.size() - frame;
    const int bar = static_cast<QScrollArea*>(centralWidget())->verticalScrollBar()->sizeHint().width();
    const QSize whole = sizeHint();
    const QSize bars(whole.height() > room.height() ? bar : 0, whole.width() > room.width() ? bar : 0);
    NormalSize = (whole + bars).boundedTo(room);
    setMinimumSize(NormalSize);
    if (!MayGrow())
        setMaximumSize(NormalSize);
    resize(NormalSize);
    QRect place(QPoint(), NormalSize + frame);
    place.moveCenter(available.center());
    move(place.topLeft());
}

bool ClientWindow::event(QEvent* event)
{
    if (!FrameKnown && isVisible() && frameGeometry() != geometry()) {
        FrameKnown = true;
        FitToScreen();
    }
    return QMainWindow::event(event);
}

/// The border is a fixed one, even where the window must be able to grow.
void ClientWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    const auto keepSize = [this] {
        if (!isMaximized() && !isFullScreen() && size() != NormalSize)
            resize(NormalSize);
    };
    QMetaObject::invokeMethod(this, keepSize, Qt::QueuedConnection);
}

/// Return presses the toolbar button with the focus, as it does other buttons.
void ClientWindow::keyPressEvent(QKeyEvent* event)
{
    auto* button = qobject_cast<QToolButton*>(focusWidget());
    if (button != nullptr && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        button->click();
    else
        QMainWindow::keyPressEvent(event);
}
