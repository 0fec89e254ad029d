#include "platform/QuitOnSignal.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSocketNotifier>

#include <cerrno>
#include <ctime>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

static volatile std::sig_atomic_t wakeDescriptor = -1;
static volatile time_t firstSecond = -1;

extern "C" {
/// A signal handler may call almost nothing: one byte wakes the event loop, which does the rest. If that
/// hangs, a second signal acts by default. Not within a second: a session may send two at once.
static void WakeEventLoop(int number)
{
    const int savedErrno = errno;
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    if (firstSecond >= 0 && now.tv_sec > firstSecond + 1) {
        signal(number, SIG_DFL);
        raise(number);
    }
    firstSecond = firstSecond < 0 ? now.tv_sec : firstSecond;
    const char byte = 0;
    // A full socket wakes it anyway.
    (void)!write(wakeDescriptor, &byte, 1);
    errno = savedErrno;
}
}

QuitOnSignal::QuitOnSignal(QObject *parent) : QObject(parent)
{
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, descriptors.data()) != 0) {
        return;
    }
    for (const int descriptor : descriptors) {
        fcntl(descriptor, F_SETFD, FD_CLOEXEC);
        fcntl(descriptor, F_SETFL, O_NONBLOCK);
    }
    wakeDescriptor = descriptors[1];
    auto *notifier = new QSocketNotifier(descriptors[0], QSocketNotifier::Read, this);
    connect(notifier, SIGNAL(activated(QSocketDescriptor, QSocketNotifier::Type)), this, SLOT(OnSignal()));

    struct sigaction action = {};
    action.sa_handler = WakeEventLoop;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < signalNumbers.size(); ++i) {
        sigaction(signalNumbers[i], nullptr, &oldActions[i]);
        if (signalNumbers[i] != SIGHUP || oldActions[i].sa_handler != SIG_IGN) {
            sigaction(signalNumbers[i], &action, nullptr);
        }
    }
}

QuitOnSignal::~QuitOnSignal()
{
    if (descriptors[0] < 0) {
        return;
    }
    for (std::size_t i = 0; i < signalNumbers.size(); ++i) {
        sigaction(signalNumbers[i], &oldActions[i], nullptr);
    }
    wakeDescriptor = -1;
    // The notifier first: the next open may get the number that it watches.
    qDeleteAll(children());
    for (const int descriptor : descriptors) {
        close(descriptor);
    }
}

void QuitOnSignal::OnSignal()
{
    char bytes[64];
    (void)!read(descriptors[0], bytes, sizeof bytes);
    QCoreApplication::postEvent(QCoreApplication::instance(), new QEvent(QEvent::Close));
}
