#pragma once

#include "freeing/TerminableThread.h"

#include <QProcess>
#include <QString>

#include <memory>

/// Runs the helper that frees memory, Resources/memfree, and waits for its first output or its end on a
/// thread of its own.
///
/// All the world learns of a run: Failed() when the helper could not be started or crashed, terminated() when
/// the run was aborted, and then finished(), whatever came before. The helper's output and exit status are
/// not looked at.
class WorkerThread : public TerminableThread
{
    Q_OBJECT

public:
    explicit WorkerThread(QObject *parent);
    /// Aborts a run that is in progress and waits for its end.
    ~WorkerThread() override;

signals:
    /// The helper is missing, cannot be executed or crashed before it wrote anything. Never emitted for an
    /// aborted run.
    void Failed();

public slots:
    /// Starts a run sized by the two figures, in bytes. Does nothing while one is in progress.
    void Start(qlonglong free, qlonglong inactive);
    void OnError(QProcess::ProcessError);
    /// Kills the helper, with all that it started, and ends the run. Returns at once; harmless when nothing
    /// runs.
    void Abort();

protected:
    void run() override;

private:
    void LetGo(std::unique_ptr<QProcess> process);

    qlonglong nFree = 0;
    qlonglong nInactive = 0;
    QString helper;
};
