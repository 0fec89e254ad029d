#pragma once

#include <QObject>
#include <QPoint>
#include <QRect>
#include <QTimer>

#include <optional>

class QWidget;

/// The position of one top-level window: puts its frame at a point, keeps it there while the window manager
/// takes the window over, and begins drags.
class WindowPlacement : public QObject
{
    Q_OBJECT

public:
    /// @param window  top-level widget, becomes the parent
    explicit WindowPlacement(QWidget *window);

    /// Puts the frame's top-left corner at a point of the desktop: now, and again shortly after the window is
    /// (or has just been) shown, so that pos() is that point then. A point that no screen shows is pulled
    /// onto the nearest screen. Does nothing where windows cannot choose their position.
    void MoveTo(const QPoint &frameTopLeft);

    /// The position to store: that of the window, or the one asked for where it had to be pulled onto a
    /// screen and the user has not moved the window since.
    QPoint PositionToStore() const;

    /// To be called at the mouse press that begins a drag. True if the compositor moves the window from here
    /// on (Wayland); otherwise the caller moves it, and no pending correction interferes.
    bool StartDrag();

    /// False on Wayland, where a window neither knows nor chooses its position.
    static bool CanPlace();

    /// The frame's top-left corner if the mouse can reach the frame in one of the screens' available areas;
    /// otherwise the nearest point that brings it back.
    static QPoint Reachable(const QRect &frame, const QList<QRect> &screens);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void Correct();

private:
    void MoveFrame(const QPoint &topLeft);
    void RememberPlace();
    bool WasMoved() const;

    QWidget *window;
    /// Where the window was asked to be; whether the user has moved it since, WasMoved() tells.
    std::optional<QPoint> wanted;
    /// Where it was put for that: frame and client area.
    QPoint framePlaced;
    QPoint clientPlaced;
    bool bInPlace = false;
    QTimer timerCorrect;
};
