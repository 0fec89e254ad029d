// A window's place: the rule that keeps it reachable, and what a window manager does to it (in a virtual X
// server, see tests/CMakeLists.txt). Starts, ends and changes of the title bar: tests/e2e.

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
    void initTestCase_data()
    {
        QTest::addColumn<Qt::WindowFlags>("flags");
        QTest::newRow("framed") << Qt::WindowFlags();
        QTest::newRow("frameless") << Qt::WindowFlags(Qt::FramelessWindowHint);
    }
    void initTestCase()
    {
        windowManager.start("openbox", {"--sm-disable"});
        // While it starts it owns the screen already, but may lose what is shown then for good.
        const auto frames = [] {
            QFrame probe;
            probe.show();
            return QTest::qWaitFor([&] { return !probe.windowHandle()->frameMargins().isNull(); }, 1000);
        };
        QVERIFY(QTest::qWaitFor(frames, 20000));
    }
    void init()
    {
        FailOnWarnings();
        frame = std::make_unique<QFrame>();
        placement = new WindowPlacement(frame.get());
        QFETCH_GLOBAL(Qt::WindowFlags, flags);
        frame->setFixedSize(343, 276);
        frame->setWindowFlags(Qt::WindowSystemMenuHint | Qt::WindowStaysOnTopHint | flags);
    }

    void reachable()
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
        for (const auto &[place, corner] : places) {
            QCOMPARE(WindowPlacement::Reachable(place, screens), corner);
            QCOMPARE(WindowPlacement::Reachable(place, {}), place.topLeft());
        }
    }

    void comesBackWhereItWas()
    {
        Show(); // the window manager chooses the place
        QTRY_COMPARE(Place(), frame->pos());
        const QPoint before = frame->pos();
        for (int i = 0; i < 2; ++i) {
            Show(false);
            // Some window managers do this with the frame that they take away.
            const int32_t place[] = {before.x() + 5, before.y() + 40};
            xcb_configure_window(Connection(), Id(), XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, place);
            xcb_flush(Connection());
            QTest::qWait(50);
            QTRY_COMPARE(frame->pos(), before);
            Show();
            QTRY_COMPARE(Place(), before);
            QCOMPARE(placement->PositionToStore(), before);
        }
    }

    void movedWhileHidden()
    {
        for (const QPoint &place : {QPoint(300, 200), QPoint(420, 250), QPoint(300, 200)}) {
            frame->move(place);
            Show();
            QTRY_COMPARE(Place(), place);
            QCOMPARE(placement->PositionToStore(), place);
            Show(false);
        }
    }

    void onAMissingScreen()
    {
        placement->MoveTo({5000, 300});
        for (int i = 0; i < 2; ++i) {
            Show();
            QTRY_VERIFY(frame->screen()->geometry().contains(QRect(Place(), frame->frameSize())));
            QCOMPARE(placement->PositionToStore(), QPoint(5000, 300));
            Show(false);
        }
        Show();
        frame->move(500, 400);
        QTRY_COMPARE(placement->PositionToStore(), QPoint(500, 400));
    }

    void aDragIsNotFought()
    {
        placement->MoveTo({300, 200});
        frame->show();
        QVERIFY(QTest::qWaitForWindowExposed(frame.get()));
        QVERIFY(!placement->StartDrag());
        frame->move(500, 400);
        QTest::qWait(400);
        QTRY_COMPARE(Place(), QPoint(500, 400));
    }

private:
    static xcb_connection_t *Connection()
    {
        return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    }
    xcb_window_t Id() const { return static_cast<xcb_window_t>(frame->windowHandle()->winId()); }
    void Show(bool bVisible = true) const
    {
        frame->setVisible(bVisible);
        QTest::qWait(bVisible ? 400 : 50); // a window manager that is not busy needs less
    }
    /// Where the server says that the window's frame is, whatever Qt believes.
    QPoint Place() const
    {
        const auto root = xcb_setup_roots_iterator(xcb_get_setup(Connection())).data->root;
        const auto request = xcb_translate_coordinates(Connection(), Id(), root, 0, 0);
        const std::unique_ptr<xcb_translate_coordinates_reply_t, decltype(&std::free)> reply(
            xcb_translate_coordinates_reply(Connection(), request, nullptr), std::free);
        const QMargins margins = frame->windowHandle()->frameMargins();
        return {reply->dst_x - margins.left(), reply->dst_y - margins.top()};
    }

    QProcess windowManager;
    std::unique_ptr<QFrame> frame;
    WindowPlacement *placement = nullptr;
};

QTEST_MAIN(TestWindowPlacement)
#include "TestWindowPlacement.moc"
