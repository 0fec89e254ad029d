// The freeing worker cut short, at every moment. KELVO_ABORTS=2000 makes the loop at the end a proof.

#include "tests/support/HelperTest.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QRandomGenerator>

class TestWorkerAbort : public HelperTest
{
    Q_OBJECT

private slots:
    void abort_data();
    void abort();
    void abortWhileIdle();
    void deletedDuringRun_data();
    void deletedDuringRun();
    void abortLoop_data();
    void abortLoop();
};

void TestWorkerAbort::abort_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("writes nothing for ever") << QByteArray("exec sleep 60");
    QTest::newRow("ignores SIGTERM") << QByteArray("trap '' TERM INT HUP; while :; do read x; sleep 1; done");
    QTest::newRow("writes to standard error for ever") << QByteArray("exec yes >&2");
    QTest::newRow("has a child") << QByteArray("sleep 60 & echo $! >child; wait");
}

void TestWorkerAbort::abort()
{
    QFETCH(QByteArray, body);
    Install(body);
    Listener listener;
    listener.worker->Start(0, 0);
    QTRY_VERIFY(IsRunning("pid") && (!body.contains("child") || IsRunning("child")));
    listener.worker->Abort();
    listener.worker->Abort();
    QTRY_COMPARE(listener.heard, QStringList({"terminated", "finished"}));
    QVERIFY(!IsRunning("pid"));
    QTRY_VERIFY(!IsRunning("child"));
    QVERIFY(!HaveChild());
}

void TestWorkerAbort::abortWhileIdle()
{
    Install("sleep 0.1");
    Listener listener;
    for (const auto &expected :
         {QStringList(), QStringList("finished"), QStringList({"finished", "finished"})}) {
        QTRY_COMPARE(listener.heard, expected);
        listener.worker->Abort();
        QTest::qWait(20);
        QCOMPARE(listener.heard, expected);
        listener.worker->Start(0, 0);
    }
    // The last run is in progress here, and once is enough: a second one is not begun beside it.
    listener.worker->Start(0, 0);
    QTRY_COMPARE(listener.heard.size(), 3);
    QTest::qWait(200);
    QCOMPARE(listener.heard, QStringList({"finished", "finished", "finished"}));
}

void TestWorkerAbort::deletedDuringRun_data()
{
    QTest::addColumn<bool>("bStarted");
    QTest::addColumn<bool>("bAborted");
    QTest::newRow("at once") << false << false;
    QTest::newRow("at once, aborted") << false << true;
    QTest::newRow("helper running") << true << false;
    QTest::newRow("helper running, aborted") << true << true;
}

void TestWorkerAbort::deletedDuringRun()
{
    QFETCH(bool, bStarted);
    QFETCH(bool, bAborted);
    Install("exec sleep 60");
    Listener listener;
    for (int i = 0; i < 10; ++i) {
        auto *worker = new WorkerThread(nullptr);
        connect(worker, SIGNAL(Failed()), &listener, SLOT(OnFailed()));
        worker->Start(0, 0);
        if (bStarted) {
            QTRY_VERIFY(IsRunning("pid"));
        }
        if (bAborted) {
            worker->Abort();
        }
        QElapsedTimer timer;
        timer.start();
        delete worker;
        QVERIFY(timer.elapsed() < 1000);
        QVERIFY(!HaveChild());
        QFile::remove(PathOf("pid"));
    }
    QCoreApplication::processEvents();
    QCOMPARE(listener.heard, QStringList());
}

void TestWorkerAbort::abortLoop_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<bool>("bEndsByItself");
    QTest::newRow("sleeping") << QByteArray("exec sleep 60") << false;
    QTest::newRow("writing") << QByteArray("echo $$; exec sleep 0.01") << true;
    QTest::newRow("exiting") << QByteArray("exit 0") << true;
    QTest::newRow("crashing") << QByteArray("kill -SEGV $$") << true;
}

/// Aborts at random moments, from before the helper is started to after its end.
void TestWorkerAbort::abortLoop()
{
    QFETCH(QByteArray, body);
    QFETCH(bool, bEndsByItself);
    // No notes: they would be half of a short helper's life.
    helper->Write(body);
    const int nAborts = qMax(1, qEnvironmentVariable("KELVO_ABORTS", QStringLiteral("50")).toInt());

    const QStringList whole =
        body.contains("SEGV") ? QStringList({"Failed", "finished"}) : QStringList("finished");
    const QStringList aborted = {"terminated", "finished"};
    qsizetype nDescriptors = 0;
    qsizetype nThreads = 0;
    qint64 nResidentKiB = 0;
    int nTerminated = 0;
    QElapsedTimer timer;
    timer.start();
    Listener listener(true);
    for (int i = 0; i < nAborts; ++i) {
        WorkerThread *worker = listener.worker;
        listener.heard.clear();
        worker->Start(0, 0);
        QThread::usleep(QRandomGenerator::global()->bounded(bEndsByItself ? 2500U : 6000U));
        if (QRandomGenerator::global()->bounded(2) != 0) {
            QCoreApplication::processEvents();
        }
        worker->Abort();
        // Without a pause, so that the worker is deleted while its thread is still ending.
        const QDeadlineTimer deadline(5000);
        while (!listener.heard.contains(QLatin1String("finished")) && !deadline.hasExpired()) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        const bool bTerminated = listener.heard == aborted;
        QVERIFY2(bTerminated || (bEndsByItself && listener.heard == whole),
                 qPrintable(listener.heard.join(' ')));
        QCOMPARE(listener.worker != worker, bTerminated);
        nTerminated += bTerminated ? 1 : 0;
        if (i == qMin(20, nAborts / 2)) {
            QTRY_VERIFY(!HaveChild());
            nDescriptors = CountIn("/proc/self/fd");
            nThreads = CountIn("/proc/self/task");
            nResidentKiB = ResidentKiB();
        }
    }
    QTRY_VERIFY(!HaveChild());
    // A thread of the run before may still have been ending when they were counted.
    QTRY_VERIFY(CountIn("/proc/self/fd") <= nDescriptors);
    QTRY_VERIFY(CountIn("/proc/self/task") <= nThreads);
    if (qEnvironmentVariableIsSet("KELVO_ABORTS")) {
        qInfo("%d aborts, %d terminated, %lld ms; resident %lld -> %lld KiB; %lld descriptors, %lld threads",
              nAborts, nTerminated, timer.elapsed(), nResidentKiB, ResidentKiB(), qint64(nDescriptors),
              qint64(nThreads));
    }
}

QTEST_GUILESS_MAIN(TestWorkerAbort)
#include "TestWorkerAbort.moc"
