// A window's position: what is reachable, and what is shown and stored; what Qt keeps of a closed one. Window
// managers: tests/e2e.

#include "platform/FocusLeftovers.h"
#include "platform/WindowPlacement.h"
#include "tests/support/FailOnWarnings.h"

#include <QFrame>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

struct Window : QWindow
{
    int Connections() const { return receivers(SIGNAL(focusObjectChanged(QObject *))); }
};

class TestWindowPlacement : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarnings(); }

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

    void movedWhileHidden()
    {
        QFrame frame;
        const auto *placement = new WindowPlacement(&frame);
        for (const QPoint &place : {QPoint(300, 200), QPoint(120, 50), QPoint(300, 200)}) {
            frame.move(place);
            QCOMPARE(placement->PositionToStore(), place);
            frame.show();
            QCOMPARE(frame.pos(), place);
            frame.hide();
        }
    }

    void onAMissingScreen()
    {
        QFrame frame;
        auto *placement = new WindowPlacement(&frame);
        placement->MoveTo({5000, 300});
        for (int i = 0; i < 2; ++i) {
            frame.show();
            QTest::qWait(200); // it is settled
            QVERIFY(frame.screen()->geometry().contains(frame.geometry()));
            placement->StartDrag(); // a click alone
            QCOMPARE(placement->PositionToStore(), QPoint(5000, 300));
            frame.hide();
        }
        frame.show();
        placement->StartDrag();
        frame.move(50, 40);
        QCOMPARE(placement->PositionToStore(), QPoint(50, 40));
    }

    void closedWithTheFocus()
    {
        FocusLeftovers leftovers(qGuiApp);
        Window window;
        for (int i = 0; i < 2; ++i) {
            window.show();
            window.requestActivate();
            QTRY_COMPARE(QGuiApplication::focusWindow(), &window);
            QCOMPARE(window.Connections(), 1);
            window.close();
        }
        QCOMPARE(window.Connections(), 0);
    }
};

QTEST_MAIN(TestWindowPlacement)
#include "TestWindowPlacement.moc"
