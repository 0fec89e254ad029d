// A window's place: the rule that keeps it reachable, and what a window manager does to it (in a virtual X
// server, see CMakeLists.txt). Starts, ends and changes of the title bar: tests/e2e.

#include "platform/WindowPlacement.h"
#include "tests/support/FailOnWarnings.h"

#include <QFrame>
#include <QGuiApplication>
#include <QProcess>

#include <cstdlib>

#include <xcb/xcb.h>

class TestWindowPlacement : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void reachable_data();
    void reachable();
    void comesBackWhereItWas();
    void aDragIsNotFought();

private:
    /// As long as a window manager that is not busy needs; after that we look until it is there.
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
    static auto Native(const QWidget &window) { return xcb_window_t(window.windowHandle()->winId()); }
    /// Where the server says that the window's content is, whatever Qt believes.
    static QPoint Content(const QWidget &window);

    QProcess windowManager;
};

QPoint TestWindowPlacement::Content(const QWidget &window)
{
    auto *connection = Connection();
    const auto root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const auto request = xcb_translate_coordinates(connection, Native(window), root, 0, 0);
    auto *reply = xcb_translate_coordinates_reply(connection, request, nullptr);
    const QPoint place = reply ? QPoint(reply->dst_x, reply->dst_y) : QPoint(-1, -1);
    std::free(reply);
    return place;
}

void TestWindowPlacement::initTestCase()
{
    FailOnWarnings();
    windowManager.start("openbox", {"--sm-disable"});
    // It manages windows from the moment that it owns the screen.
    const QString managed =
        "until xprop -root _NET_SUPPORTING_WM_CHECK | grep 'window id'; do sleep 0.1; done";
    QCOMPARE(QProcess::execute("timeout", {"20", "sh", "-c", managed}), 0);
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

void TestWindowPlacement::comesBackWhereItWas()
{
    for (const bool bFrameless : {false, true}) {
        Window window(bFrameless);
        window.frame.show();
        QTest::qWait(msSettled);
        // The window manager chose the place this time.
        QTRY_COMPARE(window.frame.geometry().topLeft(), Content(window.frame));
        QTRY_COMPARE(Content(window.frame) == window.frame.pos(), bFrameless); // it has a frame by now
        const QPoint before = window.frame.pos();
        const QPoint contentBefore = Content(window.frame);
        for (int i = 0; i < 2; ++i) {
            window.frame.hide();
            QTest::qWait(50);
            // Some window managers do this with the frame that they take away.
            const int32_t place[] = {before.x() + 5, before.y() + 40};
            xcb_configure_window(Connection(), Native(window.frame),
                                 XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, place);
            xcb_flush(Connection());
            QTest::qWait(50);
            QTRY_COMPARE(window.frame.pos(), before);
            window.frame.show();
            QTest::qWait(msSettled);
            QTRY_COMPARE(Content(window.frame), contentBefore);
            QTRY_COMPARE(window.frame.pos(), before);
        }
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
    QTRY_COMPARE(Content(window.frame), QPoint(500, 400));
}

QTEST_MAIN(TestWindowPlacement)
#include "TestWindowPlacement.moc"
