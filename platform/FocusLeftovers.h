#pragma once

#include <QObject>

class QGuiApplication;
class QWindow;

/// Removes what Qt leaves behind for each window that is closed while it has the focus. Qt connects a window
/// that gets the focus to the application, and disconnects it only when the focus goes elsewhere; when the
/// window is closed, the connection stays, and the next time there is one more. Seen with Qt 6.4.
class FocusLeftovers : public QObject
{
    Q_OBJECT

public:
    /// @param application  becomes the parent
    explicit FocusLeftovers(QGuiApplication *application);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void OnFocusWindowChanged(QWindow *window);
};
