// When a tray is there: against trays of both kinds that come and go, on an X server and a session bus of the
// test's own (see CMakeLists.txt). Nothing here shows an icon; that is for the tests with real panels.

#include "platform/TrayHost.h"
#include "tests/support/FailOnWarnings.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QSemaphore>
#include <QSignalSpy>
#include <QSystemTrayIcon>
#include <QThread>

#include <atomic>
#include <memory>

#include <xcb/xcb.h>

/// An XEmbed tray as far as it can be seen from outside: it owns the selection, and has told the root window
/// so.
class XEmbedTray
{
public:
    XEmbedTray() : connection(xcb_connect(nullptr, nullptr))
    {
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
        const xcb_window_t window = xcb_generate_id(connection);
        xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        const xcb_atom_t selection = Atom("_NET_SYSTEM_TRAY_S0");
        xcb_set_selection_owner(connection, window, selection, XCB_CURRENT_TIME);
        xcb_client_message_event_t event = {};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = screen->root;
        event.type = Atom("MANAGER");
        event.data.data32[1] = selection;
        event.data.data32[2] = window;
        xcb_send_event(connection, 0, screen->root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                       reinterpret_cast<const char *>(&event));
        xcb_flush(connection);
    }
    /// The server tidies up after a connection when it finds the time, so the next test must not rely on it.
    ~XEmbedTray()
    {
        const xcb_atom_t selection = Atom("_NET_SYSTEM_TRAY_S0");
        xcb_set_selection_owner(connection, XCB_WINDOW_NONE, selection, XCB_CURRENT_TIME);
        Atom("_NET_SYSTEM_TRAY_S0"); // its answer says that the order has been carried out
        xcb_disconnect(connection);
    }
    Q_DISABLE_COPY_MOVE(XEmbedTray)

private:
    xcb_atom_t Atom(const QByteArray &name)
    {
        const auto cookie =
            xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.constData());
        auto *reply = xcb_intern_atom_reply(connection, cookie, nullptr);
        const xcb_atom_t atom = reply->atom;
        std::free(reply);
        return atom;
    }
    xcb_connection_t *connection;
};

/// The watcher's object on the bus.
class WatcherObject : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ HasHost)

public:
    explicit WatcherObject(bool bWithHost) : bHost(bWithHost) {}
    bool HasHost() const { return bHost; }
    void AddHost()
    {
        bHost = true;
        emit StatusNotifierHostRegistered();
    }

signals:
    void StatusNotifierHostRegistered();

private:
    std::atomic<bool> bHost;
};

/// A StatusNotifierItem watcher, in a thread with a bus connection of its own, as another process would be.
class Watcher
{
public:
    explicit Watcher(bool bWithHost) : object(new WatcherObject(bWithHost))
    {
        object->moveToThread(&thread);
        QObject::connect(&thread, &QThread::finished, object, &QObject::deleteLater);
        thread.start();
        Run([this] {
            auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
            bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), object,
                               QDBusConnection::ExportAllProperties | QDBusConnection::ExportAllSignals);
            bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
        });
    }
    ~Watcher()
    {
        Run([] { QDBusConnection::disconnectFromBus(name); });
        thread.quit();
        thread.wait();
    }
    Q_DISABLE_COPY_MOVE(Watcher)

    void AddHost()
    {
        Run([this] { object->AddHost(); });
    }
    /// Does not answer for so long.
    void Hang(unsigned long msHung)
    {
        QMetaObject::invokeMethod(object, [msHung] { QThread::msleep(msHung); });
    }

private:
    template <class Work> void Run(Work work)
    {
        QMetaObject::invokeMethod(object, work, Qt::BlockingQueuedConnection);
    }
    static inline const QString name = QStringLiteral("watcher");
    QThread thread;
    WatcherObject *object;
};

class TestTrayHost : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void xEmbedAtOnce();
    void xEmbedLater();
    void statusNotifierAtOnce();
    void statusNotifierLater();
    void watcherWithoutHost();
    void hungWatcher();
    void noTray();
    void onlyOnce();
    void clicks_data();
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

void TestTrayHost::initTestCase()
{
    FailOnWarnings();
    QVERIFY2(QGuiApplication::platformName() == QLatin1String("xcb"), "needs a virtual X server");
    QVERIFY2(QDBusConnection::sessionBus().isConnected(), "needs a session bus");
}

void TestTrayHost::init()
{
    host = std::make_unique<TrayHost>();
    absent = std::make_unique<QSignalSpy>(host.get(), SIGNAL(Absent()));
    nReady = 0;
}

void TestTrayHost::xEmbedAtOnce()
{
    const XEmbedTray tray;
    QTest::qWait(50);
    Wait();
    QCOMPARE(nReady, 1);
}

void TestTrayHost::xEmbedLater()
{
    Wait();
    QTest::qWait(100);
    QCOMPARE(nReady, 0);
    const XEmbedTray tray;
    QTRY_COMPARE(nReady, 1);
}

void TestTrayHost::statusNotifierAtOnce()
{
    const Watcher watcher(true);
    Wait();
    QCOMPARE(nReady, 1);
}

void TestTrayHost::statusNotifierLater()
{
    Wait();
    QTest::qWait(100);
    QCOMPARE(nReady, 0);
    const Watcher watcher(true);
    QTRY_COMPARE(nReady, 1);
}

void TestTrayHost::watcherWithoutHost()
{
    // The watcher alone comes first in some desktops. An icon made now would ask for an XEmbed tray, for
    // good.
    Watcher watcher(false);
    Wait();
    QTest::qWait(200);
    QCOMPARE(nReady, 0);
    watcher.AddHost();
    QTRY_COMPARE(nReady, 1);
}

void TestTrayHost::hungWatcher()
{
    Watcher watcher(true);
    watcher.Hang(1500);
    QElapsedTimer clock;
    clock.start();
    Wait();
    QCOMPARE_LT(clock.elapsed(), 1000);
    QCOMPARE(nReady, 0);
    QTRY_COMPARE(nReady, 1);
}

void TestTrayHost::noTray()
{
    Wait();
    QTest::qWait(2000);
    QCOMPARE(absent->size(), 0);
    QTRY_COMPARE(absent->size(), 1);
    QTest::qWait(500);
    QCOMPARE(absent->size(), 1);
    // However late.
    const XEmbedTray tray;
    QTRY_COMPARE(nReady, 1);
}

void TestTrayHost::onlyOnce()
{
    Wait();
    const Watcher watcher(true);
    const XEmbedTray tray;
    const auto second = std::make_unique<XEmbedTray>();
    QTRY_COMPARE(nReady, 1);
    QTest::qWait(3500);
    QCOMPARE(nReady, 1);
    QCOMPARE(absent->size(), 0);
}

void TestTrayHost::clicks_data()
{
    QTest::addColumn<QSystemTrayIcon::ActivationReason>("reason");
    QTest::addColumn<int>("nClicked");
    QTest::newRow("left") << QSystemTrayIcon::Trigger << 1;
    QTest::newRow("double") << QSystemTrayIcon::DoubleClick << 1;
    QTest::newRow("right, for the menu") << QSystemTrayIcon::Context << 0;
    QTest::newRow("middle") << QSystemTrayIcon::MiddleClick << 0;
}

void TestTrayHost::clicks()
{
    QFETCH(QSystemTrayIcon::ActivationReason, reason);
    QSystemTrayIcon icon;
    host->Attach(&icon);
    const QSignalSpy clicked(host.get(), SIGNAL(Clicked()));
    emit icon.activated(reason);
    QTEST(int(clicked.size()), "nClicked");
}

QTEST_MAIN(TestTrayHost)
#include "TestTrayHost.moc"
