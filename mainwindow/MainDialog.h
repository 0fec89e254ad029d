#pragma once

#include <QFrame>
#include <QSet>
#include <QTimer>
#include <QVariantMap>

class QMovie;
class Ui_MainDialog;
class WindowPlacement;
class WorkerThread;

/// The main window: a small fixed-size panel with the memory figures, their pie chart, the total and the
/// "Free Memory" button. Each subject has a file: MainDialogSampling.cpp, MainDialogFreeing.cpp, ...
class MainDialog : public QFrame
{
    Q_OBJECT

public:
    explicit MainDialog(QWidget *parent);
    ~MainDialog() override;

    /// Shows the wait indicator of the light (0) or the dark style. The controller sets the style sheet.
    void SetStyle(int nStyle);
    /// Runs the start-up notice modally.
    void ShowStartUpMessage();
    /// Draws the chart of the latest sample, 72 x 72 pixels.
    QPixmap CreatePieChart();
    /// Stores the window's position and whether to warn before freeing.
    void SaveState();
    /// Keeps the texts that the style sheet colours readable on the desktop's palette. To be called whenever
    /// the window has been polished: after a new style sheet and after new window flags.
    void KeepReadable();

public slots:
    void OnFreeMem();
    void OnFinished();
    void OnTerminated();
    void OnFailed();
    void OnTimeOut();
    /// Takes one sample and publishes it to the labels, the chart (when forced or visible) and the
    /// controller.
    void UpdateStats(bool bForce = false);
    void SetAutoHide(bool b);
    /// Samples every 2 s (0) or every 5 s (any other value).
    void SetUpdateFrequency(int n);
    void RemindFeedback();
    void Abort();
    void Reset();

protected:
    void closeEvent(QCloseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void CreateWorker();
    void RestoreState();
    /// Counts one use in the settings store. With more than `enough` before, it schedules the feedback
    /// prompt.
    void CountUse(const QString &key, int enough, int msDelay);
    void ShowFigures();
    /// The pie chart's content for screen readers: "Free: 1.00 GB, Inactive: ...".
    QString FiguresInWords() const;
    void ShowResult(const QString &text);
    bool IsBusy() const;
    void SetHover(bool bOver);

    Ui_MainDialog *ui;
    WorkerThread *worker = nullptr;
    QSet<QObject *> replacedWorkers;
    QVariantMap stats;
    qlonglong nFreeBefore = 0;
    bool bNoWarning = false;
    bool bWarned = false;
    bool bAsking = false;
    bool bAutoHide = false;
    QPoint ptDragOffset;
    QRectF rectClose;
    bool bHover = false;
    QTimer timerAbort;
    QTimer timerReset;
    QTimer timerHide;
    QTimer timerUpdate;
    QMovie *movieWait = nullptr;
    WindowPlacement *placement = nullptr;
};
