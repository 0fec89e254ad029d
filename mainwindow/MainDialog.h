#pragma once

#include "stats/PieSlices.h"

#include <QFrame>
#include <QTimer>
#include <QVariantMap>

class QMovie;
class Ui_MainDialog;
class WindowPlacement;
class WorkerThread;

/// The main window: a small fixed-size panel with the memory figures, their pie chart, the total and the
/// "Free Memory" button. It is implemented by subject: sampling in stats/, freeing in freeing/, the rest
/// here.
class MainDialog : public QFrame
{
    Q_OBJECT

public:
    explicit MainDialog(QWidget *parent);
    ~MainDialog() override;

    /// Takes the wait indicator of the light (0) or the dark style; the style sheet is the controller's.
    void SetStyle(int nStyle);
    /// Runs the start-up notice modally.
    void ShowStartUpMessage();
    /// Draws the chart of the latest sample, 72 x 72 pixels.
    QPixmap CreatePieChart();
    /// Stores what is kept of the window itself: its place, and whether to warn before freeing.
    void SaveState();
    /// Puts the window's frame at a point of the desktop, where a window may choose its place at all.
    void Place(const QPoint &frameTopLeft);
    /// Keeps the texts that the style sheet colours readable on the desktop's palette. To be called whenever
    /// the window has been polished anew: after a style sheet and after new window flags.
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
    void CountStart();
    void ShowFigures();
    void ShowPieChart();
    /// What the pie chart shows, for those who cannot see it: "Free: 1.00 GB, Inactive: ...".
    QString FiguresInWords() const;
    void ShowResult(const QString &text);
    bool IsBusy() const;
    void SetHover(bool bOver);

    Ui_MainDialog *ui;
    WorkerThread *worker = nullptr;
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
    std::optional<PieSlices> slicesShown;
};
