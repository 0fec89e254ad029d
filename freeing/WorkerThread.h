#pragma once

#include <QProcess>
#include <QString>
#include <QThread>

#include <memory>

/// A thread with the signal that QThread had in Qt 4. It is a class of its own so that the worker declares
/// only its own signals.
class TerminableThread : public QThread
{
    Q_OBJECT

public:
    using QThread::QThread;

signals:
    /// The run was aborted. Emitted once by the ending thread, before finished().
    void terminated();
};

/// Runs the helper that frees memory, Resources/memfree, and waits for its first output or its end on a
/// thread of its own.
///
/// The outcome is known by signals only: Failed() if the helper could not be started or crashed, terminated()
/// if the run was aborted, then finished() in every case. Output and exit status are ignored.
class WorkerThread : public TerminableThread
{
    Q_OBJECT

public:
    explicit WorkerThread(QObject *parent);
    /// Aborts a run in progress and waits for its end.
    ~WorkerThread() override;

signals:
    /// The helper is missing, cannot be executed, or crashed before it wrote anything. Never emitted for an
    /// aborted run.
    void Failed();

public slots:
    /// Starts a run sized by the two figures, in bytes. Does nothing while one is in progress.
    void Start(qlonglong free, qlonglong inactive);
    void OnError(QProcess::ProcessError);
    /// Kills the helper and everything it started, and ends the run. Returns at once; does nothing without a
    /// run.
    void Abort();

protected:
    void run() override;

private:
    void Detach(std::unique_ptr<QProcess> process);

    qlonglong freeBytes = 0;
    qlonglong inactiveBytes = 0;
    QString helper;
};
