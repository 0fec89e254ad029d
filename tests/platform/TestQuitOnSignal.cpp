// What shows only inside the process that is asked to end; that all of these signals save is in tests/e2e.

#include "platform/QuitOnSignal.h"
#include "tests/support/FailOnWarnings.h"

#include <cerrno>

class TestQuitOnSignal : public QObject
{
    Q_OBJECT

private slots:
    void signalsAskTheEventLoop();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        nCloseEvents += watched == qApp && event->type() == QEvent::Close ? 1 : 0;
        return false;
    }

private:
    int nCloseEvents = 0;
};

void TestQuitOnSignal::signalsAskTheEventLoop()
{
    FailOnWarnings();
    qApp->installEventFilter(this);
    signal(SIGHUP, SIG_IGN);
    const QuitOnSignal quitOnSignal;
    raise(SIGHUP);
    QTest::qWait(50);
    QCOMPARE(nCloseEvents, 0);

    // A flood, of which only the event loop may make something: it may come in the middle of anything.
    errno = ENOSPC;
    for (int i = 0; i < 100000; ++i) {
        raise(SIGTERM);
    }
    QCOMPARE(errno, ENOSPC);
    QCOMPARE(nCloseEvents, 0);
    QTRY_VERIFY(nCloseEvents > 0);
}

QTEST_GUILESS_MAIN(TestQuitOnSignal)
#include "TestQuitOnSignal.moc"
