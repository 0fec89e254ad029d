#pragma once

#include <QObject>

#include <functional>

class QSystemTrayIcon;

/// Tells when this desktop can show a status icon, and what a click on the icon means here.
///
/// On Linux Qt decides once per process, when QSystemTrayIcon is first touched, which of the two kinds of
/// tray to talk to; an icon made before the panel is there may never appear. So nothing here touches that
/// class before a tray exists.
class TrayHost : public QObject
{
    Q_OBJECT

public:
    explicit TrayHost(QObject *parent = nullptr);

    /// Calls ready once: at once if there is a tray now, otherwise when one appears, however late. To be
    /// called once.
    void WhenAvailable(std::function<void()> ready);

    /// Linux: a left click or double click on the icon becomes Clicked(). macOS: nothing, since a click opens
    /// the menu.
    void Attach(QSystemTrayIcon *icon);

signals:
    void Clicked();
    /// Once, if no tray has appeared within about three seconds of WhenAvailable.
    void Absent();
};
