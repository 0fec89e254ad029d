// The main window's freeing slots: from a request, through the warning and the worker's run, to the result.

#include "dialogs/DialogWarning.h"
#include "dialogs/ReadableGround.h"
#include "freeing/WorkerThread.h"
#include "mainwindow/MainDialog.h"
#include "mainwindow/UsageCounters.h"
#include "stats/ByteCount.h"
#include "stats/FormatSizeString.h"
#include "ui_MainDialog.h"

#include <QLabel>
#include <QMessageBox>
#include <QMovie>
#include <QSignalBlocker>

#include <algorithm>

namespace {

/// Starting a timer is no news to anybody who listens to it.
void StartSilently(QTimer &timer)
{
    const QSignalBlocker blocker(timer);
    timer.start();
}

} // namespace

void MainDialog::CreateWorker()
{
    worker = new WorkerThread(this);
    connect(worker, SIGNAL(finished()), this, SLOT(OnFinished()), Qt::QueuedConnection);
    connect(worker, SIGNAL(terminated()), this, SLOT(OnTerminated()));
    connect(worker, SIGNAL(Failed()), this, SLOT(OnFailed()));
}

/// From a request until its outcome is shown, and while one of the flow's boxes waits for an answer.
bool MainDialog::IsBusy() const
{
    return bAsking || !ui->pushButtonGo->isEnabled();
}

void MainDialog::OnFreeMem()
{
    // Again from the menu or the reminder, or by the second click of a double click: it would lose the helper
    // that runs.
    if (IsBusy()) {
        return;
    }
    timerAbort.stop();
    timerHide.stop();
    if (!bNoWarning && !bWarned) {
        bAsking = true;
        DialogWarning warning(this);
        warning.exec();
        bNoWarning = warning.GetShowNoWarning();
        bWarned = true;
        bAsking = false;
        // Closing the warning in any way goes on: it informs, it does not ask. But the end of the program
        // closes it too, and then this request is never delivered.
        QMetaObject::invokeMethod(this, "OnFreeMem", Qt::QueuedConnection);
        return;
    }

    UpdateStats(false);
    ui->widgetResult->hide();
    ui->labelWait->show();
    if (movieWait) {
        movieWait->start();
    }
    nFreeBefore = stats[QStringLiteral("Free")].toLongLong();
    worker->Start(nFreeBefore, stats[QStringLiteral("Inactive")].toLongLong());
    ui->pushButtonGo->setEnabled(false);
    StartSilently(timerAbort);
}

void MainDialog::OnFinished()
{
    // The end of a worker that OnTerminated() replaced: "N/A" stands. Deleted only now, since nobody can tell
    // whose signal it is once its sender is gone.
    if (sender() && sender() != worker) {
        sender()->deleteLater();
        return;
    }
    // timerAbort runs on: when it fires it finds no running thread and stops itself.
    timerReset.stop();
    timerHide.stop();
    ui->pushButtonGo->setEnabled(true);
    UpdateStats(false);
    const qlonglong gained = SubtractBytes(stats[QStringLiteral("Free")].toLongLong(), nFreeBefore);
    ShowResult(FormatSizeString(std::max(gained, 0LL)));
    if (CountUsage(UsageCounter::FreeingRuns)) {
        QTimer::singleShot(1000, this, SLOT(RemindFeedback()));
    }
}

void MainDialog::OnTerminated()
{
    qDebug("terminated");
    timerReset.stop();
    timerHide.stop();
    ui->pushButtonGo->setEnabled(true);
    CreateWorker();
    ShowResult(QStringLiteral("N/A")); // the same in every language
}

void MainDialog::ShowResult(const QString &text)
{
    ui->labelReturned->setText(text);
    ui->widgetResult->show();
    ui->labelWait->hide();
    if (movieWait) {
        movieWait->stop();
    }
    // Neither timer is single-shot: auto-hide goes on hiding the window every second until the next request,
    // result or change of the setting, so that it cannot be left standing by a window shown in between.
    if (bAutoHide) {
        StartSilently(timerHide);
    }
    StartSilently(timerReset);
}

void MainDialog::OnFailed()
{
    qDebug("Failed");
    QMessageBox box(QMessageBox::Warning, tr("Failed"), tr("Failed to free memory."), QMessageBox::Ok, this);
    SetReadableGround(&box, box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label")));
    bAsking = true;
    box.exec();
    bAsking = false;
}

void MainDialog::Abort()
{
    timerAbort.stop();
    if (worker && worker->isRunning()) {
        worker->Abort();
    }
}

void MainDialog::Reset()
{
    timerReset.stop();
    ui->widgetResult->hide();
}

void MainDialog::SetAutoHide(bool b)
{
    bAutoHide = b;
    timerHide.stop();
}
