// A window's place: the rule that keeps it reachable, and what a window manager does to it (in a virtual X
// server, see CMakeLists.txt). Starts, ends and changes of the title bar: tests/e2e.

#include "platform/WindowPlacement.h"
#include "tests/support/FailOnWarnings.h"

#include <QFrame>
#include <QGuiApplication>
#include <QProcess>
#include <QWindow>

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

class TestWindowPlacement : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void reachable();
    void comesBackWhereItWas();
    void aDragIsNotFought();

private:
    static constexpr int msSettled = 300; // a window manager that is not busy needs less

    struct Window
    {
        explicit Window(bool bFrameless)
        {
            const auto frameless = bFrameless ? Qt::FramelessWindowHint : Qt::WindowFlags();
            frame.setFixedSize(343, 276);
            frame.setWindowFlags(Qt::WindowSystemMenuHint | Qt::WindowStaysOnTopHint | frameless);
        }
        /// The native window of this moment: QWidget::winId() may still be that of an earlier one.
        xcb_window_t Native() const { return static_cast<xcb_window_t>(frame.windowHandle()->winId()); }
        QPoint Content() const;

        QFrame frame;
        WindowPlacement placement{&frame};
    };
    static xcb_connection_t *Connection()
    {
        return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    }

    QProcess windowManager;
};

/// Where the server says that the window's content is, whatever Qt believes.
QPoint TestWindowPlacement::Window::Content() const
{
    auto *connection = Connection();
    const auto root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const auto request = xcb_translate_coordinates(connection, Native(), root, 0, 0);
    const std::unique_ptr<xcb_translate_coordinates_reply_t, decltype(&std::free)> reply(
        xcb_translate_coordinates_reply(connection, request, nullptr), std::free);
    return {reply->dst_x, reply->dst_y};
}

void TestWindowPlacement::initTestCase()
{
    FailOnWarnings();
    windowManager.start("openbox", {"--sm-disable"});
    // While it starts it owns the screen already, but may lose what is shown then for good.
    const auto frames = [] {
        QFrame probe;
        probe.show();
        return QTest::qWaitFor([&] { return !probe.windowHandle()->frameMargins().isNull(); }, 1000);
    };
    QVERIFY(QTest::qWaitFor(frames, 20000));
}

void TestWindowPlacement::reachable()
{
    // Two screens side by side, the left one with a panel on top.
    const QList<QRect> screens{{0, 30, 1024, 738}, {1024, 0, 1024, 768}};
    const std::pair<QRect, QPoint> places[] = {
        {{-279, 200, 343, 276}, {-279, 200}},  {{-280, 200, 343, 276}, {0, 200}}, // too little left of it
        {{100, 29, 343, 276}, {100, 30}},                                         // its upper edge hidden
        {{100, 744, 343, 276}, {100, 744}},    {{100, 745, 343, 276}, {100, 492}},
        {{2500, 300, 343, 276}, {1705, 300}},  // on a screen that is gone
        {{5000, 5000, 4000, 3000}, {1024, 0}}, // larger than any
    };
    for (const auto &[frame, corner] : places) {
        QCOMPARE(WindowPlacement::Reachable(frame, screens), corner);
        QCOMPARE(WindowPlacement::Reachable(frame, {}), frame.topLeft());
    }
}

void TestWindowPlacement::comesBackWhereItWas()
{
    for (const bool bFrameless : {false, true}) {
        Window window(bFrameless);
        window.frame.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window.frame));
        // The window manager chose the place this time.
        QTRY_COMPARE(window.frame.geometry().topLeft(), window.Content());
        QTRY_COMPARE(window.Content() == window.frame.pos(), bFrameless); // it has a frame by now
        const QPoint before = window.frame.pos();
        const QPoint contentBefore = window.Content();
        for (int i = 0; i < 2; ++i) {
            window.frame.hide();
            QTest::qWait(50);
            // Some window managers do this with the frame that they take away.
            const int32_t place[] = {before.x() + 5, before.y() + 40};
            xcb_configure_window(Connection(), window.Native(), XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y,
                                 place);
            xcb_flush(Connection());
            QTest::qWait(50);
            QTRY_COMPARE(window.frame.pos(), before);
            window.frame.show();
            QTest::qWait(msSettled);
            QTRY_COMPARE(window.Content(), contentBefore);
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
    QTRY_COMPARE(window.Content(), QPoint(500, 400));
}

QTEST_MAIN(TestWindowPlacement)
#include "TestWindowPlacement.moc"
