#include "platform/SuddenExit.h"

#include <QMetaObject>
#include <QPointer>
#include <QSemaphore>
#include <QThread>

#include <cstdlib>

#include <sys/syscall.h>
#include <unistd.h>

/// How long a thread waits for the receiver's, which may be waiting for an interpreter.
static constexpr int msPatience = 2000;

static QPointer<QObject> lastReceiver;
static const char *lastSlot = nullptr;
static pid_t ownProcess = 0;

static void CallLastSlot()
{
    QObject *const receiver = lastReceiver;
    if (!receiver) {
        return;
    }
    if (receiver->thread() == QThread::currentThread()) {
        QMetaObject::invokeMethod(receiver, lastSlot, Qt::DirectConnection);
        return;
    }
    static QSemaphore called;
    QMetaObject::invokeMethod(
        receiver,
        [receiver] {
            QMetaObject::invokeMethod(receiver, lastSlot, Qt::DirectConnection);
            called.release();
        },
        Qt::QueuedConnection);
    called.tryAcquire(1, msPatience);
}

/// In the C library's place, for Qt's libraries too. A child that could not become its program also comes
/// here.
extern "C" void _exit(int status)
{
    if (getpid() == ownProcess) {
        CallLastSlot();
    }
    for (;;) {
        syscall(SYS_exit_group, status);
    }
}

void CallBeforeSuddenExit(QObject *receiver, const char *slot)
{
    lastReceiver = receiver;
    lastSlot = slot;
    ownProcess = getpid();
    std::atexit(CallLastSlot);
}
