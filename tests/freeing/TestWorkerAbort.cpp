// The freeing worker cut short, at every moment. KELVO_ABORTS=2000 makes the loop at the end a proof.

#include "tests/support/HelperTest.h"

#include <QDeadlineTimer>
#include <QRandomGenerator>

class TestWorkerAbort : public HelperTest
{
    Q_OBJECT

private slots:
    void abort()
    {
        Install("trap '' TERM INT HUP; sleep 60 & echo $! >child; exec yes >&2");
        Listener listener;
        listener.worker->Start(0, 0);
        QTRY_VERIFY(IsRunning("pid") && IsRunning("child"));
        listener.worker->Abort();
        listener.worker->Abort();
        QTRY_COMPARE(listener.heard, QStringList({"terminated", "finished"}));
        QVERIFY(!IsRunning("pid"));
        QTRY_VERIFY(!IsRunning("child"));
    }

    void abortWhileIdle()
    {
        Install("sleep 0.1");
        Listener listener;
        QStringList expected;
        for (int i = 0; i < 3; ++i) {
            listener.worker->Abort();
            QTest::qWait(20);
            QCOMPARE(listener.heard, expected);
            // Once is enough: a second run is not begun beside the first.
            listener.worker->Start(0, 0);
            listener.worker->Start(0, 0);
            expected += "finished";
            QTRY_COMPARE(listener.heard, expected);
        }
    }

    void deletedDuringRun()
    {
        Install("exec sleep 60");
        Listener listener;
        for (int i = 0; i < 40; ++i) {
            auto *worker = new WorkerThread(nullptr);
            connect(worker, SIGNAL(Failed()), &listener, SLOT(OnFailed()));
            worker->Start(0, 0);
            if (i % 2 != 0) {
                QTRY_VERIFY(IsRunning("pid"));
            }
            if (i % 4 >= 2) {
                worker->Abort();
            }
            const QDeadlineTimer deadline(1000);
            delete worker;
            QVERIFY(!deadline.hasExpired());
            QVERIFY(!HaveChild());
            QFile::remove(PathOf("pid"));
        }
        QCoreApplication::processEvents();
        QCOMPARE(listener.heard, QStringList());
    }

    void abortLoop_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QStringList>("whole"); // what is heard of a run that ended before the abort
        QTest::newRow("sleeping") << QByteArray("exec sleep 60") << QStringList();
        QTest::newRow("writing") << QByteArray("echo $$; exec sleep 0.01") << QStringList("finished");
        QTest::newRow("exiting") << QByteArray("exit 0") << QStringList("finished");
        QTest::newRow("crashing") << QByteArray("kill -SEGV $$") << QStringList({"Failed", "finished"});
    }
    /// Aborts at random moments, from before the helper is started to after its end.
    void abortLoop()
    {
        QFETCH(QByteArray, body);
        QFETCH(QStringList, whole);
        helper->Write(body); // without notes, which would be half of a short helper's life
        const int nAborts = qMax(1, qEnvironmentVariable("KELVO_ABORTS", QStringLiteral("50")).toInt());
        const QStringList aborted = {"terminated", "finished"};
        qsizetype nDescriptors = 0;
        qsizetype nThreads = 0;
        Listener listener(true);
        for (int i = 0; i < nAborts; ++i) {
            WorkerThread *worker = listener.worker;
            listener.heard.clear();
            worker->Start(0, 0);
            QThread::usleep(QRandomGenerator::global()->bounded(whole.isEmpty() ? 6000U : 2500U));
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
            QVERIFY2(bTerminated || (!whole.isEmpty() && listener.heard == whole),
                     qPrintable(listener.heard.join(' ')));
            QCOMPARE(listener.worker != worker, bTerminated);
            if (i == qMin(20, nAborts / 2)) {
                QTRY_VERIFY(!HaveChild());
                nDescriptors = CountIn("/proc/self/fd");
                nThreads = CountIn("/proc/self/task");
            }
        }
        QTRY_VERIFY(!HaveChild());
        // A thread of the run before may still have been ending when they were counted.
        QTRY_VERIFY(CountIn("/proc/self/fd") <= nDescriptors);
        QTRY_VERIFY(CountIn("/proc/self/task") <= nThreads);
    }
};

QTEST_GUILESS_MAIN(TestWorkerAbort)
#include "TestWorkerAbort.moc"
