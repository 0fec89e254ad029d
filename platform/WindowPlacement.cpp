#include "platform/WindowPlacement.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QMoveEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <limits>

// X11: a position that is set before the show is taken for the client area's. A titled window then drifts by
// its frame at every start, and a frameless one may land at (0, 0). Moving again once the window manager has
// framed the window cures both. It frames it some 50 ms after the show, much later while it is starting up
// itself, and there is no signal for it. So the position is checked after 50, 100, ... 1600 ms, until two
// checks in a row find the frame there and in place.
static constexpr int msFirstCheck = 50;
static constexpr int msLastCheck = 1600;

// The part of a window that must be visible so that the mouse can reach it: a piece of its upper edge.
static constexpr QSize handle(64, 24);

WindowPlacement::WindowPlacement(QWidget *topLevel) : QObject(topLevel), window(topLevel)
{
    timerCorrect.setSingleShot(true);
    connect(&timerCorrect, SIGNAL(timeout()), this, SLOT(Correct()));
    window->installEventFilter(this);
}

void WindowPlacement::MoveTo(const QPoint &frameTopLeft)
{
    if (!CanPlace()) {
        return;
    }
    // A settings file may hold anything; coordinates of the X protocol have 16 bits.
    wanted = QPoint(std::clamp(frameTopLeft.x(), -32768, 32767), std::clamp(frameTopLeft.y(), -32768, 32767));
    MoveFrame(*wanted);
    if (window->isVisible()) {
        bInPlace = false;
        timerCorrect.start(msFirstCheck);
    }
}

void WindowPlacement::MoveFrame(const QPoint &topLeft)
{
    QList<QRect> screens;
    for (const QScreen *screen : QGuiApplication::screens()) {
        screens << screen->availableGeometry();
    }
    framePlaced = Reachable(QRect(topLeft, window->frameSize()), screens);
    window->move(framePlaced);
    clientPlaced = window->geometry().topLeft();
}

void WindowPlacement::RememberPlace()
{
    framePlaced = window->pos();
    clientPlaced = window->geometry().topLeft();
}

/// Whether somebody else has moved the window since. A new frame changes one of the two positions only.
bool WindowPlacement::WasMoved() const
{
    return window->pos() != framePlaced && window->geometry().topLeft() != clientPlaced;
}

QPoint WindowPlacement::PositionToStore() const
{
    return wanted && (timerCorrect.isActive() || !WasMoved()) ? *wanted : window->pos();
}

bool WindowPlacement::StartDrag()
{
    timerCorrect.stop();
    return !CanPlace() && window->windowHandle() && window->windowHandle()->startSystemMove();
}

bool WindowPlacement::CanPlace()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

QPoint WindowPlacement::Reachable(const QRect &frame, const QList<QRect> &screens)
{
    const auto holds = [&](const QRect &screen) {
        const QRect seen = screen & QRect(frame.topLeft(), QSize(frame.width(), handle.height()));
        return seen.height() == handle.height() && seen.width() >= handle.width();
    };
    if (screens.isEmpty() || std::any_of(screens.begin(), screens.end(), holds)) {
        return frame.topLeft();
    }
    QPoint nearest;
    int nearestDistance = std::numeric_limits<int>::max();
    for (const QRect &screen : screens) {
        // The upper left corner wins where the window is larger than the screen.
        const QPoint inside(
            std::max(screen.left(), std::min(frame.x(), screen.right() + 1 - frame.width())),
            std::max(screen.top(), std::min(frame.y(), screen.bottom() + 1 - frame.height())));
        const int distance = (inside - frame.topLeft()).manhattanLength();
        if (distance < nearestDistance) {
            nearest = inside;
            nearestDistance = distance;
        }
    }
    return nearest;
}

bool WindowPlacement::eventFilter(QObject *watched, QEvent *event)
{
    if (!CanPlace()) {
        return QObject::eventFilter(watched, event);
    }
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        wanted = PositionToStore();
        timerCorrect.stop();
        RememberPlace();
    } else if (event->type() == QEvent::Move && event->spontaneous() && !window->isVisible() && wanted) {
        // The window manager takes the frame away from a hidden window and may move the window by its size.
        // That is not the user's doing.
        MoveFrame(*wanted);
    } else if (event->type() == QEvent::Show && !event->spontaneous()) {
        // A move() while the window was hidden counts, and so does one before the first show.
        if (wanted ? WasMoved() : window->testAttribute(Qt::WA_Moved)) {
            wanted = window->pos();
        }
        if (wanted) {
            MoveTo(*wanted);
        }
    }
    return QObject::eventFilter(watched, event);
}

void WindowPlacement::Correct()
{
    QWindow *native = window->windowHandle();
    if (!wanted || !native || !window->isVisible()) {
        return;
    }
    // After a change of flags the widget still counts with its old frame until it next hears of a move. Only
    // then do move() and pos() mean the frame that is there.
    QMoveEvent refresh(native->position(), native->position());
    QCoreApplication::sendEvent(native, &refresh);

    // A window manager that handles the hiding late also drops the flag of a window that is kept on top.
    if (window->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) {
        native->setFlag(Qt::WindowStaysOnTopHint, false);
        native->setFlag(Qt::WindowStaysOnTopHint, true);
    }

    const bool bFramed =
        window->windowFlags().testFlag(Qt::FramelessWindowHint) || !native->frameMargins().isNull();
    const QPoint found = window->pos();
    MoveFrame(*wanted); // the frame's full size, too, is known only now
    const bool bWasInPlace = bInPlace;
    bInPlace = native->isExposed() && bFramed && found == framePlaced;
    if ((bInPlace && bWasInPlace) || timerCorrect.interval() >= msLastCheck) {
        RememberPlace(); // as the window manager has it
    } else {
        timerCorrect.start(2 * timerCorrect.interval());
    }
}
