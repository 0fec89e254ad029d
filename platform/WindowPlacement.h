#pragma once

#include <QObject>
#include <QPoint>
#include <QRect>
#include <QTimer>

#include <optional>

class QWidget;

/// Where one top-level window stands: puts its frame at a place and keeps it there through the window
/// manager's first handling of it, and begins drags.
class WindowPlacement : public QObject
{
    Q_OBJECT

public:
    /// @param window  top-level widget, becomes the parent
    explicit WindowPlacement(QWidget *window);

    /// Puts the frame's top-left corner at a point of the desktop, now and once more shortly after the window
    /// is (or has just been) shown, so that pos() equals it then. A place that no screen shows is pulled onto
    /// the nearest screen. Does nothing where windows cannot choose their place.
    void MoveTo(const QPoint &frameTopLeft);

    /// To be called at the press that begins a drag. True if the compositor moves the window from here on
    /// (Wayland); otherwise the caller moves it, and no move that is still pending gets in its way.
    bool StartDrag();

    /// False on Wayland, where a window neither knows nor chooses its place: there is nothing to save or
    /// restore.
    static bool CanPlace();

    /// The frame's top-left corner if the frame can be reached with the mouse on one of the screens'
    /// available areas; otherwise the nearest one that brings it back.
    static QPoint Reachable(const QRect &frame, const QList<QRect> &screens);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void Correct();

private:
    QPoint Place() const;

    QWidget *window;
    std::optional<QPoint> wanted;
    bool bInPlace = false;
    QTimer timerCorrect;
};
