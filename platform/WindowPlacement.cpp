#include "platform/WindowPlacement.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QMoveEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <limits>

// X11: a place chosen before the show is taken for the client area's, so that a titled window drifts by its
// frame at every start, and a frameless one may land at (0, 0). Moving again once the window manager has
// framed it cures both; it does that some 50 ms after the show, while it is starting up itself much later,
// and says so to nobody. The waits between the looks double: 50, 100, ... 1600 ms, and end with the first two
// that find the frame there and in place.
static constexpr int msFirstLook = 50;
static constexpr int msLastLook = 1600;

// What must be seen of a window so that a mouse can get hold of it: a piece of its upper edge.
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
    // A settings file may say anything; coordinates of the X protocol have 16 bits.
    wanted = QPoint(std::clamp(frameTopLeft.x(), -32768, 32767), std::clamp(frameTopLeft.y(), -32768, 32767));
    window->move(Place());
    if (window->isVisible()) {
        bInPlace = false;
        timerCorrect.start(msFirstLook);
    }
}

QPoint WindowPlacement::Place() const
{
    QList<QRect> screens;
    for (const QScreen *screen : QGuiApplication::screens()) {
        screens << screen->availableGeometry();
    }
    return Reachable(QRect(*wanted, window->frameSize()), screens);
}

bool WindowPlacement::StartDrag()
{
    wanted.reset();
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
    // What the window manager does to a window that is being hidden (it takes the frame away, and may move
    // the window by its size) is none of the user's doing: hidden, the window keeps the place that it had,
    // and comes back there.
    if (event->type() == QEvent::Hide && !event->spontaneous() && !wanted && CanPlace()) {
        wanted = window->pos();
    } else if (event->type() == QEvent::Move && event->spontaneous() && !window->isVisible() && wanted) {
        window->move(Place());
    } else if (event->type() == QEvent::Show && !event->spontaneous() && wanted) {
        MoveTo(*wanted);
    }
    return QObject::eventFilter(watched, event);
}

void WindowPlacement::Correct()
{
    QWindow *native = window->windowHandle();
    if (!wanted || !native || !window->isVisible()) {
        return;
    }
    // Under a window that was made anew with other flags the widget still counts with its old frame until it
    // next hears of a move; only then do move() and pos() mean the frame that is there.
    QMoveEvent refresh(native->position(), native->position());
    QCoreApplication::sendEvent(native, &refresh);

    // Nor is a window that was hidden for the new flags always kept on top: a window manager that comes late
    // to the hiding takes that away with it.
    if (window->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) {
        native->setFlag(Qt::WindowStaysOnTopHint, false);
        native->setFlag(Qt::WindowStaysOnTopHint, true);
    }

    // Its full size, too, is known only now.
    const QPoint place = Place();
    const bool bFramed =
        window->windowFlags().testFlag(Qt::FramelessWindowHint) || !native->frameMargins().isNull();
    const bool bWasInPlace = bInPlace;
    bInPlace = native->isExposed() && bFramed && window->pos() == place;
    window->move(place);
    if ((bInPlace && bWasInPlace) || timerCorrect.interval() >= msLastLook) {
        wanted.reset();
    } else {
        timerCorrect.start(2 * timerCorrect.interval());
    }
}
