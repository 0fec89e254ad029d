// A window's place: the rule that keeps it reachable, and real shows and hides under a window manager (in a
// virtual X server, see CMakeLists.txt).

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
    void cleanupTestCase();
    void reachable_data();
    void reachable();
    void noDriftOverStarts_data();
    void noDriftOverStarts();
    void comesBackWhereItWas_data();
    void comesBackWhereItWas();
    void keepsItsPlaceUnderNewFlags();
    void aDragIsNotFought();
    void offScreen();

private:
    /// As long as a window manager needs that is not busy; what is looked for after that may still take its
    /// time.
    static constexpr int msSettled = 300;
    static constexpr QPoint place{300, 200};

    static Qt::WindowFlags Flags(bool bFrameless)
    {
        return Qt::WindowSystemMenuHint | Qt::WindowStaysOnTopHint |
               (bFrameless ? Qt::FramelessWindowHint : Qt::WindowFlags());
    }
    struct Window
    {
        explicit Window(bool bFrameless)
        {
            frame.setFixedSize(343, 276);
            frame.setWindowFlags(Flags(bFrameless));
        }
        QFrame frame;
        WindowPlacement placement{&frame};
    };
    static xcb_connection_t *Connection()
    {
        return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    }
    /// Where the server says that the frame is, whatever Qt believes.
    static QPoint FramePlace(const QWidget &window);

    QProcess windowManager;
};

QPoint TestWindowPlacement::FramePlace(const QWidget &window)
{
    auto *connection = Connection();
    auto frame = static_cast<xcb_window_t>(window.winId());
    for (bool bTop = false; !bTop;) {
        auto *tree = xcb_query_tree_reply(connection, xcb_query_tree(connection, frame), nullptr);
        bTop = tree->parent == tree->root;
        frame = bTop ? frame : tree->parent;
        std::free(tree);
    }
    auto *geometry = xcb_get_geometry_reply(connection, xcb_get_geometry(connection, frame), nullptr);
    const QPoint corner(geometry->x, geometry->y);
    std::free(geometry);
    return corner;
}

void TestWindowPlacement::initTestCase()
{
    FailOnWarnings();
    QVERIFY2(QGuiApplication::platformName() == QLatin1String("xcb"), "needs a virtual X server");
    QVERIFY(WindowPlacement::CanPlace());
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
    row("inside", {100, 200, 343, 276}, {100, 200});
    row("over both screens", {900, 100, 343, 276}, {900, 100});
    row("partly out, a handle left of it", {-279, 200, 343, 276}, {-279, 200});
    row("partly out, too little left of it", {-280, 200, 343, 276}, {0, 200});
    row("only its lower part seen", {100, -100, 343, 276}, {100, 30});
    row("under the panel", {100, 29, 343, 276}, {100, 30});
    row("below the bottom", {100, 745, 343, 276}, {100, 492});
    row("a handle above the bottom", {100, 744, 343, 276}, {100, 744});
    row("on a screen that is gone", {2500, 300, 343, 276}, {1705, 300});
    row("far away", {-100000, 100000, 343, 276}, {0, 492});
    row("larger than any screen", {5000, 5000, 4000, 3000}, {1024, 0});
    row("without a size", {0, 0, 0, 0}, {0, 30});
}

void TestWindowPlacement::reachable()
{
    QFETCH(QRect, frame);
    const QList<QRect> screens{{0, 30, 1024, 738}, {1024, 0, 1024, 768}};
    QTEST(WindowPlacement::Reachable(frame, screens), "corner");
    QCOMPARE(WindowPlacement::Reachable(frame, {}), frame.topLeft());
}

void TestWindowPlacement::noDriftOverStarts_data()
{
    QTest::addColumn<bool>("bFrameless");
    QTest::addColumn<bool>("bHiddenAtTheEnd");
    QTest::newRow("titled") << false << false;
    QTest::newRow("titled, hidden at the end") << false << true;
    QTest::newRow("frameless") << true << false;
    QTest::newRow("frameless, hidden at the end") << true << true;
}

void TestWindowPlacement::noDriftOverStarts()
{
    QFETCH(bool, bFrameless);
    QFETCH(bool, bHiddenAtTheEnd);
    QPoint saved = place;
    for (int nStart = 0; nStart < 3; ++nStart) {
        Window window(bFrameless);
        window.placement.MoveTo(saved);
        QCOMPARE(window.frame.pos(), place);
        window.frame.show();
        QTest::qWait(msSettled);
        QTRY_COMPARE(FramePlace(window.frame), place);
        if (bHiddenAtTheEnd) {
            window.frame.hide();
            QTest::qWait(100);
        }
        saved = window.frame.pos();
        QCOMPARE(saved, place);
    }
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
    const QPoint before = FramePlace(window.frame);
    for (int i = 0; i < 2; ++i) {
        window.frame.hide();
        QTest::qWait(50);
        // Some window managers do this with the frame that they take away.
        const int32_t elsewhere[] = {before.x() + 5, before.y() + 40};
        xcb_configure_window(Connection(), static_cast<xcb_window_t>(window.frame.winId()),
                             XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, elsewhere);
        xcb_flush(Connection());
        QTest::qWait(50);
        QTRY_COMPARE(window.frame.pos(), before);
        window.frame.show();
        QTest::qWait(msSettled);
        QTRY_COMPARE(FramePlace(window.frame), before);
        QTRY_COMPARE(window.frame.pos(), before);
    }
}

void TestWindowPlacement::keepsItsPlaceUnderNewFlags()
{
    Window window(false);
    window.placement.MoveTo(place);
    window.frame.show();
    QTest::qWait(msSettled);
    for (const bool bFrameless : {true, false, true, false}) {
        const QPoint before = window.frame.pos();
        window.frame.setWindowFlags(Flags(bFrameless));
        window.frame.show();
        window.placement.MoveTo(before);
        QTest::qWait(msSettled);
        QTRY_COMPARE(FramePlace(window.frame), place);
        QTRY_COMPARE(window.frame.pos(), place);
    }
}

void TestWindowPlacement::aDragIsNotFought()
{
    Window window(true);
    window.placement.MoveTo(place);
    window.frame.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window.frame));
    QVERIFY(!window.placement.StartDrag());
    window.frame.move(500, 400);
    QTest::qWait(msSettled);
    QTRY_COMPARE(FramePlace(window.frame), QPoint(500, 400));
}

void TestWindowPlacement::offScreen()
{
    Window window(false);
    window.placement.MoveTo({5000, 4000});
    window.frame.show();
    QTest::qWait(msSettled);
    QTRY_VERIFY(window.frame.screen()->availableGeometry().contains(window.frame.frameGeometry()));
}

QTEST_MAIN(TestWindowPlacement)
#include "TestWindowPlacement.moc"
