#include "freeing/WorkerThread.h"

#include "platform/Global.h"

#include <QFileInfo>

#include <csignal>
#include <unistd.h>

namespace {

/// Deliberately asked for on top of what is free and inactive, so that the target is never too small.
constexpr qulonglong marginBytes = 100ULL << 20;

/// How long to wait for a killed helper, and for a thread to end.
constexpr int msKilled = 1000;
constexpr int msEnded = 3000;

/// Kills the helper and everything it started. Only the thread that reaps it may do so: for any other one the
/// process id may already belong to another program.
void KillGroup(const QProcess &process)
{
    const auto pid = static_cast<pid_t>(process.processId());
    if (pid > 0) {
        // The child creates its group itself, but may not have done so yet.
        ::setpgid(pid, pid);
        ::kill(-pid, SIGKILL);
    }
}

} // namespace

WorkerThread::WorkerThread(QObject *parent) : TerminableThread(parent) {}

WorkerThread::~WorkerThread()
{
    // The window may be destroyed during a run, and deletes an aborted worker at terminated(), shortly before
    // the thread ends. Qt aborts the program when a running thread is destroyed.
    Abort();
    if (!wait(msEnded)) {
        // Only a file system that hangs keeps run() for so long.
        terminate();
        wait(msEnded);
    }
}

void WorkerThread::Start(qlonglong free, qlonglong inactive)
{
    if (isRunning()) {
        return;
    }
    freeBytes = free;
    inactiveBytes = inactive;
    // Here and not in run(): Qt caches the application's directory at the first call, without a lock.
    helper = Global::BundledResourcesDirectory() + QStringLiteral("/memfree");
    start(QThread::InheritPriority);
}

void WorkerThread::OnError(QProcess::ProcessError)
{
    emit Failed();
}

void WorkerThread::Abort()
{
    // Not terminate(): a thread that is cancelled inside QProcess crashed the program in one case out of 30.
    // Both calls work before run() has reached its event loop too, and neither outlasts the run.
    requestInterruption();
    quit();
}

void WorkerThread::run()
{
    // Unsigned: malformed figures wrap around.
    const auto target = static_cast<qlonglong>(static_cast<qulonglong>(inactiveBytes) +
                                               static_cast<qulonglong>(freeBytes) + marginBytes);

    // Tested first: Qt 6.4 leaks a descriptor at every start that fails.
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
    process->start(helper, {QString::number(target)}, QIODevice::ReadWrite);
    exec();
    process->disconnect(this);

    // Decided once, here: what happens to the helper later is no failure of the run.
    const bool bAborted = isInterruptionRequested();
    if (bAborted) {
        KillGroup(*process);
        process->waitForFinished(msKilled);
    } else if (process->error() != QProcess::UnknownError && process->bytesAvailable() == 0) {
        OnError(process->error());
    }
    if (process->state() != QProcess::NotRunning) {
        Detach(std::move(process));
    }
    if (bAborted) {
        emit terminated();
    }
}

/// Lets the helper run on until it ends by itself. A process object kills its child when it is deleted, so it
/// moves to the main thread and lives as long as the helper. If the program ends first, the object is not
/// deleted and the helper goes on.
void WorkerThread::Detach(std::unique_ptr<QProcess> process)
{
    // A closed channel is still read and its data dropped: a helper that writes for ever neither blocks, nor
    // dies of a closed pipe, nor fills our memory.
    process->closeReadChannel(QProcess::StandardOutput);
    connect(process.get(), SIGNAL(finished(int, QProcess::ExitStatus)), process.get(), SLOT(deleteLater()));
    process.release()->moveToThread(thread());
}
