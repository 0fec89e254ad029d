// The main window's freeing run: from the request, by way of the warning and the worker, to the result.

#include "dialogs/DialogWarning.h"
#include "dialogs/ReadableGround.h"
#include "figures/ByteCount.h"
#include "figures/FormatSizeString.h"
#include "freeing/WorkerThread.h"
#include "mainwindow/MainDialog.h"
#include "ui_MainDialog.h"

#include <QLabel>
#include <QMessageBox>
#include <QMovie>
#include <QSignalBlocker>

#include <algorithm>

namespace {

/// Starts a timer with its signals blocked.
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

/// During a run, and while the warning or the failure box is open.
bool MainDialog::IsBusy() const
{
    return bAsking || !ui->pushButtonGo->isEnabled();
}

void MainDialog::OnFreeMem()
{
    // A second request, from the menu, the reminder or a double click, would lose the running helper.
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
        // Deliberate: however the warning is closed, the run goes on. It informs, it does not ask. But the
        // end of the program closes it too, and then this request is not delivered any more.
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
    // A worker that OnTerminated() has replaced: "N/A" stays. It is deleted only now, because a signal whose
    // sender is gone cannot be told from the new worker's.
    if (replacedWorkers.remove(sender())) {
        sender()->deleteLater();
        return;
    }
    // timerAbort deliberately runs on: when it fires it finds no running thread and stops itself.
    timerReset.stop();
    timerHide.stop();
    ui->pushButtonGo->setEnabled(true);
    UpdateStats(false);
    const qlonglong gained = SubtractBytes(stats[QStringLiteral("Free")].toLongLong(), nFreeBefore);
    ShowResult(FormatSizeString(std::max(gained, 0LL)));
    CountUse(QStringLiteral("Application/ExecCount"), 20, 1000);
}

void MainDialog::OnTerminated()
{
    qDebug("terminated");
    timerReset.stop();
    timerHide.stop();
    ui->pushButtonGo->setEnabled(true);
    replacedWorkers.insert(worker);
    CreateWorker();
    ShowResult(QStringLiteral("N/A")); // deliberately not translated
}

void MainDialog::ShowResult(const QString &text)
{
    ui->labelReturned->setText(text);
    ui->widgetResult->show();
    ui->labelWait->hide();
    if (movieWait) {
        movieWait->stop();
    }
    // Deliberately not single-shot: auto-hide hides the window every second until the next request, result or
    // change of the setting, also a window that was shown in between.
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
