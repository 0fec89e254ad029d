// The freeing worker with real helpers of every temper, aborted and deleted at every moment.
// KELVO_ABORTS=2000 makes the loop of aborts a proof.

#include "freeing/WorkerThread.h"
#include "tests/support/BundledFake.h"
#include "tests/support/FailOnWarnings.h"
#include "tests/support/Processes.h"

#include <QDeadlineTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <sys/wait.h>

/// Hears a worker, and replaces one that was aborted, as the main window does.
struct Listener : QObject
{
    Listener() { CreateWorker(); }
    void CreateWorker()
    {
        worker = new WorkerThread(this);
        connect(worker, &WorkerThread::finished, this, [this] { heard << "finished"; });
        connect(worker, &WorkerThread::Failed, this, [this] { heard << "Failed"; });
        connect(worker, &WorkerThread::terminated, this, [this] {
            heard << "terminated";
            worker->deleteLater();
            CreateWorker();
        });
    }

    WorkerThread *worker = nullptr;
    QStringList heard;
};

/// Of ours, alive or not reaped.
static bool HaveChild()
{
    siginfo_t info{};
    return ::waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT | __WALL) == 0;
}

class TestWorkerThread : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FailOnWarnings();
        directory = std::make_unique<QTemporaryDir>();
    }
    void cleanup() { QTRY_VERIFY2(!HaveChild(), "a helper was not reaped"); }

    void ending_data()
    {
        QTest::addColumn<QStringList>("heard");
        for (const char *good :
             {"echo done; exit 1", "head -c 4194304 /dev/zero >&2", "exec >&-; sleep 0.2; touch last",
              "sleep 3 &", "echo done; kill -SEGV $$"}) {
            QTest::newRow(good) << QStringList("finished");
        }
        QTest::newRow("kill -SEGV $$") << QStringList({"Failed", "finished"});
    }
    void ending()
    {
        QFETCH(QStringList, heard);
        const QByteArray body = QTest::currentDataTag();
        Install(body);
        // A worker is used again after a normal end, a failed one included.
        Listener listener;
        QStringList expected;
        for (int i = 0; i < 3; ++i) {
            expected += heard;
            listener.worker->Start(3000000000, 2000000000);
            QTRY_COMPARE(listener.heard, expected);
            QCOMPARE(Noted("arguments"), "5104857600");
            QCOMPARE(body.contains("last"), QFile::remove(directory->filePath("last")));
            QTRY_VERIFY2(!HaveChild(), "the helper did not come to its end, or was not reaped");
        }
        QTest::qWait(20); // nothing comes late
        QCOMPARE(listener.heard, expected);
    }

    void firstOutputEndsTheRun()
    {
        Install("[ $1 = 104857600 ] || sleep 1; echo; sleep 0.5; echo; >end$1; kill -SEGV $$");
        Listener listener;
        listener.worker->Start(0, 0);
        QTRY_COMPARE(listener.heard.size(), 1);
        QVERIFY(HaveChild());
        // Neither the next run nor the worker's end is the first helper's.
        listener.worker->Start(1, 0);
        QTRY_COMPARE(listener.heard.size(), 2);
        delete listener.worker;
        QTRY_VERIFY(QFile::exists(directory->filePath("end104857600")));
        QTRY_VERIFY(QFile::exists(directory->filePath("end104857601")));
        QCOMPARE(listener.heard, QStringList({"finished", "finished"}));
    }

    void abortAtRandom_data()
    {
        QTest::addColumn<QStringList>("whole"); // what is heard of a run that ended before the abort
        QTest::newRow("exec sleep 60") << QStringList();
        QTest::newRow("echo; exec sleep 0.01") << QStringList("finished");
        QTest::newRow("kill -SEGV $$") << QStringList({"Failed", "finished"});
    }
    void abortAtRandom()
    {
        QFETCH(QStringList, whole);
        memfree.Write(QTest::currentDataTag());
        const int aborts = qMax(1, qEnvironmentVariable("KELVO_ABORTS", "50").toInt());
        auto *const random = QRandomGenerator::global();
        qsizetype descriptors = 0;
        qsizetype threads = 0;
        Listener listener;
        for (int i = 0; i < aborts; ++i) {
            listener.heard.clear();
            listener.worker->Start(0, 0);
            QThread::usleep(random->bounded(whole.isEmpty() ? 6000U : 2500U));
            if (random->bounded(2) != 0) {
                QCoreApplication::processEvents();
            }
            listener.worker->Abort();
            // Without a pause, so that the worker is deleted while its thread is still ending.
            for (const QDeadlineTimer deadline(5000); !listener.heard.contains("finished");) {
                QVERIFY(!deadline.hasExpired());
                QCoreApplication::processEvents();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            }
            QVERIFY2(listener.heard == whole || listener.heard == QStringList({"terminated", "finished"}),
                     qPrintable(listener.heard.join(' ')));
            if (i == qMin(20, aborts / 2)) {
                QTRY_VERIFY(!HaveChild());
                descriptors = CountOwn("fd");
                threads = CountOwn("task");
            }
        }
        // A thread of the run before may still have been ending when they were counted.
        QTRY_VERIFY(!HaveChild() && CountOwn("fd") <= descriptors && CountOwn("task") <= threads);
    }

private:
    /// Installs a helper that notes its id and its argument in the test's directory, and there does the rest.
    void Install(const QByteArray &body) const
    {
        memfree.Write("cd " + directory->path().toLocal8Bit() + "\necho $* >arguments\necho $$ >pid\n" +
                      body);
    }
    QByteArray Noted(const char *name) const
    {
        QFile file(directory->filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    }
    bool IsRunning(const char *name) const { return IsAlive(Noted(name)); }

    std::unique_ptr<QTemporaryDir> directory;
    const BundledFake memfree{"memfree"};
};

QTEST_GUILESS_MAIN(TestWorkerThread)
#include "TestWorkerThread.moc"
