// A window's place: the rule that keeps it reachable, and what a window manager does to it (in a virtual X
// server, see CMakeLists.txt). Starts, ends and changes of the title bar are in tests/e2e.

#include "platform/WindowPlacement.h"
#include "tests/support/FailOnWarnings.h"

#include <QFrame>
#include <QGuiApplication>
#include <QProcess>

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

class TestWindowPlacement : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void reachable_data();
    void reachable();
    void comesBackWhereItWas_data();
    void comesBackWhereItWas();
    void aDragIsNotFought();

private:
    /// As long as a window manager needs that is not busy; what is looked for after that may still take its
    /// time.
    static constexpr int msSettled = 300;

    struct Window
    {
        explicit Window(bool bFrameless)
        {
            frame.setFixedSize(343, 276);
            frame.setWindowFlags(Qt::WindowSystemMenuHint | Qt::WindowStaysOnTopHint |
                                 (bFrameless ? Qt::FramelessWindowHint : Qt::WindowFlags()));
        }
        QFrame frame;
        WindowPlacement placement{&frame};
    };
    static xcb_connection_t *Connection()
    {
        return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    }
    /// The native window of this moment: QWidget::winId() may still be that of an earlier one.
    static xcb_window_t Native(const QWidget &window)
    {
        return static_cast<xcb_window_t>(window.windowHandle()->winId());
    }
    /// Where the server says that the frame is, whatever Qt believes.
    static QPoint FramePlace(const QWidget &window);

    QProcess windowManager;
};

QPoint TestWindowPlacement::FramePlace(const QWidget &window)
{
    const auto get = [](auto *reply) {
        return std::unique_ptr<std::remove_pointer_t<decltype(reply)>, decltype(&std::free)>(reply,
                                                                                             std::free);
    };
    auto *connection = Connection();
    auto frame = Native(window);
    for (;;) {
        const auto tree = get(xcb_query_tree_reply(connection, xcb_query_tree(connection, frame), nullptr));
        const auto geometry =
            get(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, frame), nullptr));
        if (!tree || !geometry) {
            return {-1, -1}; // a frame that was just being taken away
        }
        if (tree->parent == tree->root) {
            return {geometry->x, geometry->y};
        }
        frame = tree->parent;
    }
}

void TestWindowPlacement::initTestCase()
{
    FailOnWarnings();
    QVERIFY2(QGuiApplication::platformName() == QLatin1String("xcb"), "needs a virtual X server");
    windowManager.start(QStringLiteral("openbox"), {QStringLiteral("--sm-disable")});
    QVERIFY2(windowManager.waitForStarted(), "needs openbox");
    // It manages windows from the moment that it owns the screen.
    const auto manages = [] {
        QProcess xprop;
        xprop.start(QStringLiteral("xprop"),
                    {QStringLiteral("-root"), QStringLiteral("_NET_SUPPORTING_WM_CHECK")});
        xprop.waitForFinished();
        return xprop.readAll().contains("window id");
    };
    QTRY_VERIFY(manages());
}

void TestWindowPlacement::cleanupTestCase()
{
    windowManager.terminate();
    windowManager.waitForFinished();
}

void TestWindowPlacement::reachable_data()
{
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QPoint>("corner");
    // Two screens side by side, the left one with a panel on top.
    const auto row = [](const char *name, QRect frame, QPoint corner) {
        QTest::newRow(name) << frame << corner;
    };
    row("over both screens", {900, 100, 343, 276}, {900, 100});
    row("partly out, a handle left of it", {-279, 200, 343, 276}, {-279, 200});
    row("partly out, too little left of it", {-280, 200, 343, 276}, {0, 200});
    row("its upper edge hidden", {100, 29, 343, 276}, {100, 30});
    row("below the bottom", {100, 745, 343, 276}, {100, 492});
    row("a handle above the bottom", {100, 744, 343, 276}, {100, 744});
    row("on a screen that is gone", {2500, 300, 343, 276}, {1705, 300});
    row("far away", {-100000, 100000, 343, 276}, {0, 492});
    row("larger than any screen", {5000, 5000, 4000, 3000}, {1024, 0});
}

void TestWindowPlacement::reachable()
{
    QFETCH(QRect, frame);
    const QList<QRect> screens{{0, 30, 1024, 738}, {1024, 0, 1024, 768}};
    QTEST(WindowPlacement::Reachable(frame, screens), "corner");
    QCOMPARE(WindowPlacement::Reachable(frame, {}), frame.topLeft());
}

void TestWindowPlacement::comesBackWhereItWas_data()
{
    QTest::addColumn<bool>("bFrameless");
    QTest::newRow("titled") << false;
    QTest::newRow("frameless") << true;
}

void TestWindowPlacement::comesBackWhereItWas()
{
    QFETCH(bool, bFrameless);
    Window window(bFrameless);
    window.frame.show();
    QTest::qWait(msSettled);
    // The window manager chose the place this time.
    QTRY_COMPARE(FramePlace(window.frame), window.frame.pos());
    const QPoint before = window.frame.pos();
    for (int i = 0; i < 2; ++i) {
        window.frame.hide();
        QTest::qWait(50);
        // Some window managers do this with the frame that they take away.
        const int32_t elsewhere[] = {before.x() + 5, before.y() + 40};
        xcb_configure_window(Connection(), Native(window.frame), XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y,
                             elsewhere);
        xcb_flush(Connection());
        QTest::qWait(50);
        QTRY_COMPARE(window.frame.pos(), before);
        window.frame.show();
        QTest::qWait(msSettled);
        QTRY_COMPARE(FramePlace(window.frame), before);
        QTRY_COMPARE(window.frame.pos(), before);
    }
}

void TestWindowPlacement::aDragIsNotFought()
{
    Window window(true);
    window.placement.MoveTo({300, 200});
    window.frame.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window.frame));
    QVERIFY(!window.placement.StartDrag());
    window.frame.move(500, 400);
    QTest::qWait(msSettled);
    QTRY_COMPARE(FramePlace(window.frame), QPoint(500, 400));
}

QTEST_MAIN(TestWindowPlacement)
#include "TestWindowPlacement.moc"
