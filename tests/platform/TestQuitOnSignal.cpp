// What a process shows only from inside when it is asked to end; that all of these signals save is in
// tests/e2e.

#include "platform/QuitOnSignal.h"
#include "tests/support/FailOnWarnings.h"

#include <QTest>

#include <cerrno>

class TestQuitOnSignal : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { nCloseEvents = 0; }
    void floodOfSignals();
    void ignoredHangUp();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        nCloseEvents += watched == qApp && event->type() == QEvent::Close ? 1 : 0;
        return false;
    }

private:
    int nCloseEvents = 0;
};

void TestQuitOnSignal::initTestCase()
{
    FailOnWarnings();
    qApp->installEventFilter(this);
}

void TestQuitOnSignal::floodOfSignals()
{
    const QuitOnSignal quitOnSignal;
    errno = ENOSPC;
    for (int i = 0; i < 100000; ++i) {
        raise(SIGTERM);
    }
    QCOMPARE(errno, ENOSPC);
    // Only the event loop may act: the signal may have come in the middle of anything.
    QCOMPARE(nCloseEvents, 0);
    QTRY_VERIFY(nCloseEvents > 0);
}

void TestQuitOnSignal::ignoredHangUp()
{
    const auto before = signal(SIGHUP, SIG_IGN);
    const QuitOnSignal quitOnSignal;
    raise(SIGHUP);
    QTest::qWait(50);
    QCOMPARE(nCloseEvents, 0);
    signal(SIGHUP, before);
}

QTEST_GUILESS_MAIN(TestQuitOnSignal)
#include "TestQuitOnSignal.moc"
