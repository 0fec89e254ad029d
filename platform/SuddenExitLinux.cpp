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
static std::function<void()> lastCall;
static pid_t ownProcess = 0;
static QSemaphore answered;

static void MakeLastCall()
{
    QObject *const receiver = lastReceiver;
    // A child that could not become its program ends this way too.
    if (!receiver || getpid() != ownProcess) {
        return;
    }
    if (receiver->thread() == QThread::currentThread()) {
        lastCall();
        return;
    }
    QMetaObject::invokeMethod(
        receiver,
        [] {
            lastCall();
            answered.release();
        },
        Qt::QueuedConnection);
    answered.tryAcquire(1, msPatience);
}

/// In the C library's place, for Qt's libraries too.
extern "C" void _exit(int status)
{
    MakeLastCall();
    for (;;) {
        syscall(SYS_exit_group, status);
    }
}

void CallBeforeSuddenExit(QObject *receiver, const std::function<void()> &call)
{
    lastReceiver = receiver;
    lastCall = call;
    if (!receiver) {
        // The thread that the end has come to may be waiting, and be waited for.
        answered.release();
        return;
    }
    ownProcess = getpid();
    std::atexit(MakeLastCall);
}
