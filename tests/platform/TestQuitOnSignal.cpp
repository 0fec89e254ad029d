// Signals that ask the program to end, raised in this very process.

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
    void asksToQuit_data();
    void asksToQuit();
    void floodOfSignals();
    void ignoredHangUp();
    void dispositionsComeBack();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        nCloseEvents += watched == qApp && event->type() == QEvent::Close ? 1 : 0;
        return false;
    }

private:
    static auto Disposition(int nSignal)
    {
        struct sigaction action = {};
        sigaction(nSignal, nullptr, &action);
        return action.sa_handler;
    }

    int nCloseEvents = 0;
};

void TestQuitOnSignal::initTestCase()
{
    FailOnWarnings();
    qApp->installEventFilter(this);
}

void TestQuitOnSignal::asksToQuit_data()
{
    QTest::addColumn<int>("nSignal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void TestQuitOnSignal::asksToQuit()
{
    QFETCH(int, nSignal);
    const QuitOnSignal quitOnSignal;
    raise(nSignal);
    // Only the event loop may act: the signal may have come in the middle of anything.
    QCOMPARE(nCloseEvents, 0);
    QTRY_COMPARE(nCloseEvents, 1);
    raise(nSignal);
    QTRY_COMPARE(nCloseEvents, 2);
}

void TestQuitOnSignal::floodOfSignals()
{
    const QuitOnSignal quitOnSignal;
    errno = ENOSPC;
    for (int i = 0; i < 100000; ++i) {
        raise(SIGTERM);
    }
    QCOMPARE(errno, ENOSPC);
    QTRY_VERIFY(nCloseEvents > 0);
}

void TestQuitOnSignal::ignoredHangUp()
{
    const auto before = signal(SIGHUP, SIG_IGN);
    {
        const QuitOnSignal quitOnSignal;
        QVERIFY(Disposition(SIGHUP) == SIG_IGN);
        raise(SIGHUP);
        QTest::qWait(50);
        QCOMPARE(nCloseEvents, 0);
    }
    QVERIFY(Disposition(SIGHUP) == SIG_IGN);
    signal(SIGHUP, before);
}

void TestQuitOnSignal::dispositionsComeBack()
{
    const auto before = signal(SIGINT, SIG_IGN);
    const auto terminate = Disposition(SIGTERM);
    {
        const QuitOnSignal quitOnSignal;
        QVERIFY(Disposition(SIGINT) != SIG_IGN);
        QVERIFY(Disposition(SIGTERM) != terminate);
    }
    QVERIFY(Disposition(SIGINT) == SIG_IGN);
    QVERIFY(Disposition(SIGTERM) == terminate);
    signal(SIGINT, before);
}

QTEST_GUILESS_MAIN(TestQuitOnSignal)
#include "TestQuitOnSignal.moc"
