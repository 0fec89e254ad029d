// The freeing worker with real helpers of every temper, aborted and deleted at every moment.
// KELVO_ABORTS=2000 makes the loop of aborts a proof.

#include "freeing/WorkerThread.h"
#include "tests/support/BundledFake.h"
#include "tests/support/FailOnWarnings.h"
#include "tests/support/Processes.h"

#include <QDeadlineTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <csignal>
#include <sys/wait.h>

namespace {

/// Hears a worker in the main thread, and replaces one that was aborted, as the main window does.
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
bool HaveChild()
{
    siginfo_t info{};
    return ::waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT | __WALL) == 0;
}

qint64 ResidentKiB()
{
    QFile file("/proc/self/statm");
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').at(1).toLongLong() * 4 : 0;
}

} // namespace

class TestWorkerThread : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FailOnWarnings();
        directory = std::make_unique<QTemporaryDir>();
        helper = std::make_unique<BundledFake>("memfree");
    }
    void cleanup()
    {
        for (const char *name : {"pid", "child"}) {
            if (IsRunning(name)) {
                ::kill(Noted(name).toInt(), SIGKILL);
            }
        }
        QTRY_VERIFY2(!HaveChild(), "a helper was not reaped");
    }

    void ending_data()
    {
        QTest::addColumn<QStringList>("heard");
        for (const char *good :
             {"echo done; exit 1", "sleep 0.2", "head -c 1048576 /dev/zero", "head -c 4194304 /dev/zero >&2",
              "exec >&-; sleep 0.2; touch last", "sleep 60 & echo $! >child", "echo done; kill -SEGV $$"}) {
            QTest::newRow(good) << QStringList("finished");
        }
        QTest::newRow("kill -SEGV $$") << QStringList({"Failed", "finished"});
    }
    void ending()
    {
        QFETCH(QStringList, heard);
        Install(QTest::currentDataTag());
        // A worker is used again after a normal end, a failed one included.
        Listener listener;
        QStringList expected;
        for (int i = 0; i < 3; ++i) {
            expected += heard;
            listener.worker->Start(3000000000, 2000000000);
            listener.worker->Start(0, 0); // not begun beside the first
            QTRY_COMPARE(listener.heard, expected);
            QCOMPARE(Noted("arguments"), "1:5104857600");
            QCOMPARE(QByteArray(QTest::currentDataTag()).contains("last"), QFile::remove(PathOf("last")));
            QTRY_VERIFY2(!HaveChild(), "the helper did not come to its end, or was not reaped");
        }
        QTest::qWait(20); // nothing comes late
        QCOMPARE(listener.heard, expected);
    }

    void firstOutputEndsTheRun()
    {
        Install("[ $1 = 104857600 ] || sleep 1; >told$1; echo; sleep 0.5; echo; >end$1; kill -SEGV $$");
        Listener listener;
        listener.worker->Start(0, 0);
        QTRY_COMPARE(listener.heard, QStringList("finished"));
        QVERIFY(HaveChild());
        // Neither the next run nor the worker's end is the first helper's.
        listener.worker->Start(1, 0);
        QTRY_COMPARE(listener.heard.size(), 2);
        QVERIFY(QFile::exists(PathOf("told104857601")));
        delete listener.worker;
        QTRY_VERIFY(QFile::exists(PathOf("end104857600")) && QFile::exists(PathOf("end104857601")));
        QTRY_VERIFY(!HaveChild());
        QCOMPARE(listener.heard, QStringList({"finished", "finished"}));
    }

    void writingForEver()
    {
        Install("yes >&2 & echo $! >child; exec yes");
        const Listener listener;
        listener.worker->Start(0, 0);
        QTRY_VERIFY(IsRunning("pid"));
        const qint64 before = ResidentKiB();
        // Not qWait(), which sleeps: what arrives is to be read as fast as it can be.
        for (const QDeadlineTimer deadline(300); !deadline.hasExpired();) {
            QCoreApplication::processEvents();
        }
        QVERIFY(IsRunning("pid"));
        QVERIFY2(ResidentKiB() - before < 65536, "what the helper wrote was kept");
    }

    /// The test program itself, started again as an application that quits right after a run.
    void helperOutlivesTheProgram()
    {
        Install("echo done; sleep 0.5; touch last");
        QCOMPARE(QProcess::execute(QCoreApplication::applicationFilePath(), {"quit-after-run"}), 0);
        QVERIFY(!QFile::exists(PathOf("last")));
        QTRY_VERIFY(QFile::exists(PathOf("last")));
    }

    void failingCostsNothing()
    {
        Listener listener;
        const auto fail = [&](int times) {
            for (int i = 0; i < times; ++i) {
                listener.heard.clear();
                listener.worker->Start(0, 0);
                QTRY_COMPARE(listener.heard, QStringList({"Failed", "finished"}));
            }
        };
        fail(1);
        const auto descriptors = CountOwn("fd");
        helper->Write("echo never", false);
        fail(10);
        QVERIFY(QFile::remove(helper->path) && QDir().mkdir(helper->path));
        fail(10);
        QVERIFY(QDir().rmdir(helper->path));
        QCOMPARE(CountOwn("fd"), descriptors);
    }

    void abortKillsTheGroup()
    {
        Install("trap '' TERM INT HUP; sleep 60 & echo $! >child; exec yes >&2");
        Listener listener;
        listener.worker->Abort(); // idle: nothing
        listener.worker->Start(0, 0);
        QTRY_VERIFY(IsRunning("pid") && IsRunning("child"));
        listener.worker->Abort();
        listener.worker->Abort();
        QTRY_COMPARE(listener.heard, QStringList({"terminated", "finished"}));
        QVERIFY(!IsRunning("pid"));
        QTRY_VERIFY(!IsRunning("child"));
    }

    void deletedDuringRun()
    {
        Install("exec sleep 60");
        for (int i = 0; i < 40; ++i) {
            Listener listener;
            listener.worker->Start(0, 0);
            if (i % 2 != 0) {
                QTRY_VERIFY(IsRunning("pid"));
            }
            if (i % 4 >= 2) {
                listener.worker->Abort();
            }
            const QDeadlineTimer deadline(1000);
            delete listener.worker;
            QVERIFY(!deadline.hasExpired() && !HaveChild());
            QVERIFY(!listener.heard.contains("Failed"));
            QFile::remove(PathOf("pid"));
        }
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
        helper->Write(QTest::currentDataTag()); // without notes, which would be half of a short helper's life
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
            const QDeadlineTimer deadline(5000);
            while (!listener.heard.contains("finished") && !deadline.hasExpired()) {
                QCoreApplication::processEvents();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            }
            if (listener.heard != whole) {
                QCOMPARE(listener.heard, QStringList({"terminated", "finished"}));
            }
            if (i == qMin(20, aborts / 2)) {
                QTRY_VERIFY(!HaveChild());
                descriptors = CountOwn("fd");
                threads = CountOwn("task");
            }
        }
        QTRY_VERIFY(!HaveChild());
        // A thread of the run before may still have been ending when they were counted.
        QTRY_VERIFY(CountOwn("fd") <= descriptors && CountOwn("task") <= threads);
    }

private:
    /// Installs a helper that notes its id and its arguments in the test's directory, and there does what is
    /// asked.
    void Install(const QByteArray &body)
    {
        helper->Write("cd " + directory->path().toLocal8Bit() +
                      "\necho \"$#:$1\" >arguments\necho $$ >pid\n" + body);
    }
    QString PathOf(const char *name) const { return directory->filePath(name); }
    QByteArray Noted(const char *name) const
    {
        QFile file(PathOf(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    }
    bool IsRunning(const char *name) const { return IsAlive(Noted(name)); }

    std::unique_ptr<QTemporaryDir> directory;
    std::unique_ptr<BundledFake> helper;
};

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc == 2 && qstrcmp(argv[1], "quit-after-run") == 0) {
        WorkerThread worker(nullptr);
        QObject::connect(&worker, SIGNAL(finished()), &app, SLOT(quit()), Qt::QueuedConnection);
        worker.Start(0, 0);
        return QCoreApplication::exec();
    }
    TestWorkerThread test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestWorkerThread.moc"
