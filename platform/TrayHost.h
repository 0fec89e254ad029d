#pragma once

#include <QObject>

#include <functional>

class QSystemTrayIcon;

/// Tells when the desktop can show a status icon, and what a click on the icon means here.
///
/// On Linux Qt decides once per process, at the first use of QSystemTrayIcon, which of the two kinds of tray
/// to talk to. An icon that is made before the panel starts may never appear, so nothing here uses that class
/// before a tray exists.
class TrayHost : public QObject
{
    Q_OBJECT

public:
    explicit TrayHost(QObject *parent = nullptr);

    /// Calls ready once: now if there is a tray or if this platform knows no trays, otherwise when one
    /// appears, however late. To be called once.
    void WhenAvailable(std::function<void()> ready);

    /// Whether there is certainly no tray any more. May take 100 ms; a panel that is slow to answer is there.
    static bool IsGone();

    /// Whether the tray shows icons of the theme by their names. May take 100 ms.
    static bool TakesIconNames();

    /// Linux: a left click or double click on the icon becomes Clicked(). macOS: nothing, a click opens the
    /// menu.
    void Attach(QSystemTrayIcon *icon);

signals:
    void Clicked();
    /// Once, if no tray has appeared within about three seconds of WhenAvailable().
    void Absent();
};
