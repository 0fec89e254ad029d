// The freeing worker against real helpers of every temper.

#include "tests/support/HelperTest.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QMetaMethod>
#include <QProcess>
#include <QTimer>

#include <limits>

class TestWorkerThread : public HelperTest
{
    Q_OBJECT

private slots:
    void interface();
    void argument_data();
    void argument();
    void ending_data();
    void ending();
    void firstOutputEndsTheRun();
    void writingForEver_data();
    void writingForEver();
    void helperOutlivesTheProgram();
    void failingCostsNothing();
};

void TestWorkerThread::interface()
{
    const QMetaObject &meta = WorkerThread::staticMetaObject;
    QList<QByteArray> methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods += meta.method(i).methodSignature();
    }
    QCOMPARE(methods, QList<QByteArray>({"Failed()", "Start(qlonglong,qlonglong)",
                                         "OnError(QProcess::ProcessError)", "Abort()"}));
    QCOMPARE(meta.method(meta.methodOffset() + 1).parameterNames(), QList<QByteArray>({"free", "inactive"}));

    Listener listener;
    listener.worker->OnError(QProcess::Crashed);
    QCOMPARE(listener.heard, QStringList("Failed"));
}

void TestWorkerThread::argument_data()
{
    QTest::addColumn<qlonglong>("free");
    QTest::addColumn<qlonglong>("inactive");
    QTest::addColumn<QByteArray>("arguments");
    constexpr qlonglong most = std::numeric_limits<qlonglong>::max();
    QTest::newRow("nothing") << 0LL << 0LL << QByteArray("1:104857600");
    QTest::newRow("more than 32 bits") << 3000000000LL << 2000000000LL << QByteArray("1:5104857600");
    QTest::newRow("not grouped") << 1LL << 0LL << QByteArray("1:104857601");
    QTest::newRow("wraps round") << most << most << QByteArray("1:104857598");
    QTest::newRow("below zero") << -104857600LL << -1LL << QByteArray("1:-1");
}

void TestWorkerThread::argument()
{
    QFETCH(qlonglong, free);
    QFETCH(qlonglong, inactive);
    Install("exit 0");
    Listener listener;
    listener.worker->Start(free, inactive);
    QTRY_COMPARE(listener.heard, QStringList("finished"));
    QTEST(Noted("arguments"), "arguments");
}

void TestWorkerThread::ending_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QStringList>("heard");
    const QStringList good = {"finished"};
    const QStringList bad = {"Failed", "finished"};
    const auto row = [](const char *name, const char *body, const QStringList &heard) {
        QTest::newRow(name) << QByteArray(body) << heard;
    };
    row("answers", "echo done", good);
    row("answers and fails", "echo done; exit 1", good);
    row("silent", "exit 0", good);
    row("silent after a while", "sleep 0.2", good);
    row("silent and fails", "exit 3", good);
    row("writes a megabyte", "head -c 1048576 /dev/zero", good);
    row("writes to standard error only", "head -c 4194304 /dev/zero >&2", good);
    row("closes its output first", "exec >&-; sleep 0.2; touch last", good);
    row("leaves a child that holds its output", "sleep 60 & echo $! >child", good);
    row("crashes", "kill -SEGV $$", bad);
    row("writes and crashes", "echo done; kill -SEGV $$", good);
    row("missing", nullptr, bad);
}

void TestWorkerThread::ending()
{
    QFETCH(QByteArray, body);
    QFETCH(QStringList, heard);
    if (!body.isNull()) {
        Install(body);
    }
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
    // Nothing comes late.
    QTest::qWait(20);
    QCOMPARE(listener.heard, expected);
}

void TestWorkerThread::firstOutputEndsTheRun()
{
    Install("echo done; sleep 0.5; echo more; echo more >&2; touch \"last$1\"; kill -SEGV $$");
    Listener listener;
    const auto nDescriptors = CountIn("/proc/self/fd");
    QElapsedTimer timer;
    timer.start();
    listener.worker->Start(0, 0);
    QTRY_COMPARE(listener.heard, QStringList("finished"));
    QVERIFY(timer.elapsed() < 400);
    QVERIFY(HaveChild());
    // Neither the next run nor the worker's end is the first helper's.
    listener.worker->Start(1, 0);
    QTRY_COMPARE(listener.heard.size(), 2);
    delete listener.worker;
    QTRY_VERIFY(QFile::exists(PathOf("last104857600")) && QFile::exists(PathOf("last104857601")));
    QTRY_VERIFY(!HaveChild());
    QTRY_COMPARE(CountIn("/proc/self/fd"), nDescriptors);
    QCOMPARE(listener.heard, QStringList({"finished", "finished"}));
}

void TestWorkerThread::writingForEver_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("output") << QByteArray("exec yes");
    QTest::newRow("standard error") << QByteArray("exec yes >&2");
}

void TestWorkerThread::writingForEver()
{
    QFETCH(QByteArray, body);
    Install(body);
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
void TestWorkerThread::helperOutlivesTheProgram()
{
    Install("echo done; sleep 0.5; touch last");
    QCOMPARE(QProcess::execute(QCoreApplication::applicationFilePath(), {QStringLiteral("quit-after-run")}),
             0);
    QVERIFY(!QFile::exists(PathOf("last")));
    QTRY_VERIFY(QFile::exists(PathOf("last")));
}

void TestWorkerThread::failingCostsNothing()
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
    fail(10);
    helper->Write("echo never", false);
    fail(10);
    QVERIFY(QFile::remove(helper->path) && QDir().mkdir(helper->path));
    fail(10);
    QVERIFY(QDir().rmdir(helper->path));
    QCOMPARE(CountIn("/proc/self/fd"), nDescriptors);
}

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
