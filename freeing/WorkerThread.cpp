#include "freeing/WorkerThread.h"

#include "platform/BundledResources.h"
#include "stats/ByteCount.h"

#include <QFileInfo>

#include <csignal>
#include <unistd.h>

namespace {

/// Asked for on top of what is free and inactive, so that the helper is never short of the whole.
constexpr qlonglong nMargin = 100LL << 20;

/// How long a killed helper may take to be gone, and a thread to end, before we go on without it.
constexpr int msKilled = 1000;
constexpr int msEnded = 3000;

/// Kills the helper and whatever it started. Only for the thread that reaps it: to any other the id may
/// already be a stranger's.
void KillGroup(const QProcess &process)
{
    const auto pid = static_cast<pid_t>(process.processId());
    if (pid > 0) {
        // The child makes its group itself, but may not have come to it yet.
        ::setpgid(pid, pid);
        ::kill(-pid, SIGKILL);
    }
}

} // namespace

WorkerThread::WorkerThread(QObject *parent) : TerminableThread(parent) {}

WorkerThread::~WorkerThread()
{
    // The window is destroyed with a run in progress, and deletes an aborted worker as soon as it hears
    // terminated(), a moment before the thread is over: Qt ends the program when a running thread is
    // destroyed.
    Abort();
    if (!wait(msEnded)) {
        // Nothing in run() waits that long, save for a file system that hangs.
        terminate();
        wait(msEnded);
    }
}

void WorkerThread::Start(qlonglong free, qlonglong inactive)
{
    if (isRunning()) {
        return;
    }
    nFree = free;
    nInactive = inactive;
    // Here, since Qt remembers the application's directory at the first question and takes no lock for it.
    helper = Global::BundledResourcesDirectory() + QStringLiteral("/memfree");
    start(QThread::InheritPriority);
}

void WorkerThread::OnError(QProcess::ProcessError)
{
    emit Failed();
}

void WorkerThread::Abort()
{
    // Not terminate(): cancelled inside QProcess, the thread takes the program with it in one case out of
    // thirty. Both calls may come before run() has reached its event loop, and count all the same; neither
    // outlives the run.
    requestInterruption();
    quit();
}

void WorkerThread::run()
{
    const qlonglong nTarget = AddBytes(AddBytes(nInactive, nFree), nMargin);

    // Asked first, since Qt 6.4 loses a descriptor at every start that fails.
    if (const QFileInfo file(helper); !file.isFile() || !file.isExecutable()) {
        emit Failed();
        return;
    }

    auto process = std::make_unique<QProcess>();
    process->setStandardErrorFile(QProcess::nullDevice());
    process->setChildProcessModifier([] { ::setpgid(0, 0); });
    connect(process.get(), SIGNAL(readyReadStandardOutput()), this, SLOT(quit()), Qt::DirectConnection);
    connect(process.get(), SIGNAL(finished(int, QProcess::ExitStatus)), this, SLOT(quit()),
            Qt::DirectConnection);
    connect(process.get(), SIGNAL(errorOccurred(QProcess::ProcessError)), this, SLOT(quit()),
            Qt::DirectConnection);
    process->start(helper, {QString::number(nTarget)}, QIODevice::ReadWrite);
    exec();
    process->disconnect(this);

    // Decided here and once: what happens to the helper from now on, by our hand or by its own, is no failure
    // of the run.
    const bool bAborted = isInterruptionRequested();
    if (bAborted) {
        KillGroup(*process);
        process->waitForFinished(msKilled);
    } else if (process->error() != QProcess::UnknownError && process->bytesAvailable() == 0) {
        OnError(process->error());
    }
    if (process->state() != QProcess::NotRunning) {
        LetGo(std::move(process));
    }
    if (bAborted) {
        emit terminated();
    }
}

/// Leaves the helper to end by itself: a process object kills its child when it is deleted, so it goes to the
/// main thread and lives there for as long as the helper does. When the program ends first, the object is
/// never deleted and the helper is left alone: it has done its work, and what it still does is its own
/// affair.
void WorkerThread::LetGo(std::unique_ptr<QProcess> process)
{
    // Closed, the channel is still read, and what comes is thrown away: the helper may write for ever, and
    // neither waits for us, nor dies of a closed pipe, nor makes us grow.
    process->closeReadChannel(QProcess::StandardOutput);
    connect(process.get(), SIGNAL(finished(int, QProcess::ExitStatus)), process.get(), SLOT(deleteLater()));
    process.release()->moveToThread(thread());
}
