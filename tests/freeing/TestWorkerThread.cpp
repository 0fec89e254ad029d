// The freeing worker against real helpers of every temper.

#include "tests/support/HelperTest.h"

#include <QEventLoop>
#include <QMetaMethod>
#include <QProcess>
#include <QTimer>

class TestWorkerThread : public HelperTest
{
    Q_OBJECT

private slots:
    void interface()
    {
        const QMetaObject &meta = WorkerThread::staticMetaObject;
        for (const char *method :
             {"Failed()", "Start(qlonglong,qlonglong)", "OnError(QProcess::ProcessError)", "Abort()"}) {
            QVERIFY2(meta.indexOfMethod(method) >= meta.methodOffset(), method);
        }
        Listener listener;
        listener.worker->OnError(QProcess::Crashed);
        QCOMPARE(listener.heard, QStringList("Failed"));
    }

    void argument()
    {
        constexpr qlonglong most = 0x7fffffffffffffff;
        const std::tuple<qlonglong, qlonglong, QByteArray> cases[] = {
            {3000000000, 2000000000, "1:5104857600"}, {most, most, "1:104857598"}};
        Install("exit 0");
        for (const auto &[free, inactive, arguments] : cases) {
            Listener listener;
            listener.worker->Start(free, inactive);
            QTRY_COMPARE(listener.heard, QStringList("finished"));
            QCOMPARE(Noted("arguments"), arguments);
        }
    }

    void ending_data()
    {
        QTest::addColumn<QStringList>("heard");
        for (const char *good : {"echo done; exit 1", "sleep 0.2", "exit 3", "head -c 1048576 /dev/zero",
                                 "head -c 4194304 /dev/zero >&2", "exec >&-; sleep 0.2; touch last",
                                 "sleep 60 & echo $! >child", "echo done; kill -SEGV $$"}) {
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
            listener.worker->Start(1, 2);
            QTRY_COMPARE(listener.heard, expected);
            QCOMPARE(body.contains("last"), QFile::remove(PathOf("last")));
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
        Listener listener;
        listener.worker->Start(0, 0);
        QTRY_VERIFY(IsRunning("pid"));
        const qint64 nBefore = ResidentKiB();
        // Not qWait(), which sleeps: what arrives is to be read as fast as it can be.
        QEventLoop loop;
        QTimer::singleShot(300, &loop, SLOT(quit()));
        loop.exec();
        QVERIFY(IsRunning("pid"));
        QVERIFY2(ResidentKiB() - nBefore < 65536, "what the helper wrote was kept");
    }

    /// The test program itself, started again as an application that quits right after a run.
    void helperOutlivesTheProgram()
    {
        Install("echo done; sleep 0.5; touch last");
        const QString self = QCoreApplication::applicationFilePath();
        QCOMPARE(QProcess::execute(self, {QStringLiteral("quit-after-run")}), 0);
        QVERIFY(!QFile::exists(PathOf("last")));
        QTRY_VERIFY(QFile::exists(PathOf("last")));
    }

    void failingCostsNothing()
    {
        Listener listener;
        const auto fail = [&](int nTimes) {
            for (int i = 0; i < nTimes; ++i) {
                listener.heard.clear();
                listener.worker->Start(0, 0);
                QTRY_COMPARE(listener.heard, QStringList({"Failed", "finished"}));
            }
        };
        fail(1);
        const auto nDescriptors = CountIn("/proc/self/fd");
        helper->Write("echo never", false);
        fail(10);
        QVERIFY(QFile::remove(helper->path) && QDir().mkdir(helper->path));
        fail(10);
        QVERIFY(QDir().rmdir(helper->path));
        QCOMPARE(CountIn("/proc/self/fd"), nDescriptors);
    }
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
