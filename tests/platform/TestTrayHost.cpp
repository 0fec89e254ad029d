// When a tray is there, against watchers that come and go on a session bus of the test's own (see
// CMakeLists.txt). Real panels, trays of the other kind and none: tests/e2e.

#include "platform/TrayHost.h"
#include "tests/support/FailOnWarnings.h"

#include <QDBusConnection>
#include <QSignalSpy>
#include <QSystemTrayIcon>
#include <QThread>

/// A StatusNotifierItem watcher, in a thread with a bus connection of its own, as another process would be.
class Watcher : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered MEMBER bHost)

public:
    explicit Watcher(bool bWithHost) : bHost(bWithHost)
    {
        moveToThread(&thread);
        thread.start();
        Run([this] {
            auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "watcher");
            bus.registerObject("/StatusNotifierWatcher", this,
                               QDBusConnection::ExportAllProperties | QDBusConnection::ExportAllSignals);
            bus.registerService("org.kde.StatusNotifierWatcher");
        });
    }
    ~Watcher() override
    {
        Run([this] {
            QDBusConnection::disconnectFromBus("watcher");
            qDeleteAll(children()); // what exports the signals would outlive the connection
        });
        thread.quit();
        thread.wait();
    }
    void Run(const std::function<void()> &work, Qt::ConnectionType type = Qt::BlockingQueuedConnection)
    {
        QMetaObject::invokeMethod(this, work, type);
    }
    void AddHost()
    {
        bHost = true;
        emit StatusNotifierHostRegistered();
    }

signals:
    void StatusNotifierHostRegistered();

private:
    bool bHost;
    QThread thread;
};

class TestTrayHost : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FailOnWarnings();
        host = std::make_unique<TrayHost>();
        absent = std::make_unique<QSignalSpy>(host.get(), SIGNAL(Absent()));
        nReady = 0;
    }
    void hungWatcher();
    void hostAfterItsWatcher();
    void clicks();

private:
    void Wait()
    {
        host->WhenAvailable([this] { ++nReady; });
    }

    std::unique_ptr<TrayHost> host;
    std::unique_ptr<QSignalSpy> absent;
    int nReady = 0;
};

void TestTrayHost::hungWatcher()
{
    Watcher watcher(true);
    watcher.Run([] { QThread::msleep(1500); }, Qt::QueuedConnection);
    QElapsedTimer clock;
    clock.start();
    Wait();
    QCOMPARE_LT(clock.elapsed(), 1000);
    QCOMPARE(nReady, 0);
    QTRY_COMPARE(nReady, 1);
    Wait();
    QCOMPARE(nReady, 2); // at once
}

void TestTrayHost::hostAfterItsWatcher()
{
    // The watcher alone comes first in some desktops: an icon made now would ask for an XEmbed tray, for
    // good.
    Wait();
    Watcher watcher(false);
    QTest::qWait(200);
    QCOMPARE(nReady, 0);
    for (int i = 0; i < 2; ++i) {
        watcher.Run([&] { watcher.AddHost(); });
    }
    QTRY_COMPARE(nReady, 1);
    QTest::qWait(3500);
    QCOMPARE(nReady, 1);
    QCOMPARE(absent->size(), 0);
}

void TestTrayHost::clicks()
{
    QSystemTrayIcon icon;
    host->Attach(&icon);
    const QSignalSpy clicked(host.get(), SIGNAL(Clicked()));
    for (int nReason = QSystemTrayIcon::Unknown; nReason <= QSystemTrayIcon::MiddleClick; ++nReason) {
        emit icon.activated(QSystemTrayIcon::ActivationReason(nReason));
    }
    QCOMPARE(clicked.size(), 2); // single and double; not for the menu
}

QTEST_MAIN(TestTrayHost)
#include "TestTrayHost.moc"
