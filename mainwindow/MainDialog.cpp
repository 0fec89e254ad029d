#include "mainwindow/MainDialog.h"

#include "dialogs/DialogStartUpInfo.h"
#include "dialogs/ReadableGround.h"
#include "platform/WindowPlacement.h"
#include "ui_MainDialog.h"

#include <QCoreApplication>
#include <QMovie>
#include <QSettings>

MainDialog::MainDialog(QWidget *parent) : QFrame(parent), ui(new Ui_MainDialog)
{
    ui->setupUi(this);
    setWindowFlags(Qt::WindowSystemMenuHint);
    setAttribute(Qt::WA_MouseTracking, false);
    // For the dark style, translucent where the display can do it. To be set before the native window exists.
    setAttribute(Qt::WA_TranslucentBackground);
    rectClose = QRectF(4.0, 4.0, 14.0, 14.0);
    setWindowTitle(QCoreApplication::applicationName());
    placement = new WindowPlacement(this);

    connect(ui->pushButtonGo, SIGNAL(clicked()), this, SLOT(OnFreeMem()), Qt::QueuedConnection);
    ui->widgetResult->hide();
    ui->labelWait->hide();
    ui->labelPieChart->setAttribute(Qt::WA_TranslucentBackground);
    CreateWorker();

    connect(&timerUpdate, SIGNAL(timeout()), this, SLOT(OnTimeOut()));
    timerUpdate.start(2000);
    UpdateStats(true);
    RestoreState();
    // Deliberately other numbers than those of a run: starts come sooner, and need a moment to settle.
    CountUse(QStringLiteral("Application/StartCount"), 15, 2000);

    timerAbort.setInterval(50000);
    timerHide.setInterval(1000);
    timerReset.setInterval(15000);
    connect(&timerAbort, SIGNAL(timeout()), this, SLOT(Abort()));
    connect(&timerReset, SIGNAL(timeout()), this, SLOT(Reset()));
    connect(&timerHide, SIGNAL(timeout()), this, SLOT(hide()));
}

MainDialog::~MainDialog()
{
    Abort();
    SaveState();
    delete ui;
}

void MainDialog::RestoreState()
{
    const QSettings settings;
    bNoWarning = settings.value(QStringLiteral("MainWindow/Warning"), false).toBool();
    // Deliberate: (0, 0), which is also what a missing key reads as, means no position.
    const QPoint position = settings.value(QStringLiteral("MainWindow/Position")).toPoint();
    if (!position.isNull()) {
        placement->MoveTo(position);
    }
}

void MainDialog::SaveState()
{
    QSettings settings;
    settings.setValue(QStringLiteral("MainWindow/Warning"), bNoWarning);
    if (WindowPlacement::CanPlace()) {
        settings.setValue(QStringLiteral("MainWindow/Position"), placement->PositionToStore());
    }
}

void MainDialog::SetStyle(int nStyle)
{
    if (movieWait) {
        ui->labelWait->clear();
        delete movieWait;
    }
    movieWait = new QMovie(nStyle ? QStringLiteral(":/wait_indicator_dark.gif")
                                  : QStringLiteral(":/wait_indicator.gif"),
                           QByteArray(), this);
    ui->labelWait->setMovie(movieWait);
    movieWait->start();
    // A hidden label needs no frames, at ten wake-ups a second. A freeing run starts the movie.
    movieWait->setPaused(ui->labelWait->isHidden());
    KeepReadable();
}

void MainDialog::KeepReadable()
{
    SetReadableGround(this, ui->labelInactive);
}

void MainDialog::SetUpdateFrequency(int n)
{
    timerUpdate.start(n == 0 ? 2000 : 5000);
}

void MainDialog::ShowStartUpMessage()
{
    DialogStartUpInfo notice(this);
    notice.exec();
}
