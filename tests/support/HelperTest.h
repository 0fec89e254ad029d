#pragma once

#include "freeing/WorkerThread.h"
#include "tests/support/BundledFake.h"
#include "tests/support/FailOnWarnings.h"

#include <QTemporaryDir>

#include <csignal>
#include <sys/wait.h>

/// Listens to a worker as the main window does, and replaces it likewise after a termination.
class Listener : public QObject
{
    Q_OBJECT

public:
    explicit Listener(bool bReplaces = false) : bReplacesTerminated(bReplaces) { CreateWorker(); }

    WorkerThread *worker = nullptr;
    QStringList heard;

public slots:
    void OnFinished() { Hear(QStringLiteral("finished")); }
    void OnFailed() { Hear(QStringLiteral("Failed")); }
    void OnTerminated()
    {
        Hear(QStringLiteral("terminated"));
        if (bReplacesTerminated) {
            worker->deleteLater();
            CreateWorker();
        }
    }

private:
    void CreateWorker()
    {
        worker = new WorkerThread(this);
        connect(worker, SIGNAL(finished()), this, SLOT(OnFinished()), Qt::QueuedConnection);
        connect(worker, SIGNAL(terminated()), this, SLOT(OnTerminated()));
        connect(worker, SIGNAL(Failed()), this, SLOT(OnFailed()));
    }
    void Hear(const QString &signal)
    {
        QCOMPARE(QThread::currentThread(), QCoreApplication::instance()->thread());
        heard += signal;
    }

    const bool bReplacesTerminated;
};

/// False also for a zombie: an orphan may find no parent that reaps it.
inline bool IsAlive(qint64 pid)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
    return file.open(QIODevice::ReadOnly) && !file.readAll().contains(") Z ");
}

/// Of ours, alive or not reaped.
inline bool HaveChild()
{
    siginfo_t info{};
    return ::waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT | __WALL) == 0;
}

inline qsizetype CountIn(const char *directory)
{
    return QDir(QLatin1String(directory))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
        .size();
}

/// Resident memory of this process.
inline qint64 ResidentKiB()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').at(1).toLongLong() * 4 : 0;
}

/// What the tests of the freeing worker have in common: a helper of its own for each, and no process left
/// behind.
class HelperTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { FailOnWarnings(); }
    void init()
    {
        directory = std::make_unique<QTemporaryDir>();
        helper = std::make_unique<BundledFake>(QStringLiteral("memfree"));
    }
    void cleanup()
    {
        for (const char *name : {"pid", "child"}) {
            if (IsRunning(name)) {
                ::kill(static_cast<pid_t>(Noted(name).toLongLong()), SIGKILL);
            }
        }
        QTRY_VERIFY2(!HaveChild(), "a helper was not reaped");
        helper.reset();
    }

protected:
    /// Installs a helper that notes its id and its arguments in the test's directory, and there does what is
    /// asked.
    void Install(const QByteArray &body)
    {
        helper->Write("cd " + directory->path().toLocal8Bit() +
                      "\necho \"$#:$1\" >arguments\necho $$ >pid\n" + body);
    }
    QString PathOf(const char *name) const { return directory->filePath(QLatin1String(name)); }
    QByteArray Noted(const char *name) const
    {
        QFile file(PathOf(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    }
    bool IsRunning(const char *name) const { return IsAlive(Noted(name).toLongLong()); }

    std::unique_ptr<QTemporaryDir> directory;
    std::unique_ptr<BundledFake> helper;
};
