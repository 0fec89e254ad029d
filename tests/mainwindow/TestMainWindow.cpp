// The main window: what it draws when, and a freeing run from click to result.

#include "dialogs/DialogWarning.h"
#include "freeing/TerminableThread.h"
#include "tests/support/RunningApp.h"

#include <QCheckBox>
#include <QLabel>
#include <QMovie>
#include <QPushButton>
#include <QSignalSpy>

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void chartIsDrawnWhenItCanBeSeen();
    void waitIndicatorFollowsTheStyle();
    void freeingRun_data();
    void freeingRun();
    void warningComesOnce_data();
    void warningComesOnce();
    void quitDuringTheWarningFreesNothing();
    void watchdog();

private:
    static QString Text(const char *label) { return RunningApp::Find<QLabel>(label)->text(); }
    static bool IsFreeing() { return !RunningApp::Find<QPushButton>("pushButtonGo")->isEnabled(); }
    static MainDialog *Window() { return RunningApp::Window<MainDialog>(); }
};

void TestMainWindow::init()
{
    FailOnWarnings();
    RunningApp::ForgetSettings();
    RunningApp::Store(QStringLiteral("MainWindow/Warning"), true);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void TestMainWindow::chartIsDrawnWhenItCanBeSeen()
{
    RunningApp running(RunningApp::Report(100, 0, 0, 100));
    const auto *label = RunningApp::Find<QLabel>("labelPieChart");
    const auto left = [&] { return label->pixmap(Qt::ReturnByValue).toImage().pixelColor(18, 36); };
    QCOMPARE(left(), QColor(Qt::green));
    Window()->hide();
    running.Sample(RunningApp::Report(0, 0, 0, 100));
    QCOMPARE(left(), QColor(Qt::green));
    Window()->UpdateStats(true);
    QCOMPARE(left(), QColor(Qt::red));
    Window()->show();
    running.Sample(RunningApp::Report(100, 0, 0, 100));
    QCOMPARE(left(), QColor(Qt::green));
}

void TestMainWindow::waitIndicatorFollowsTheStyle()
{
    RunningApp running;
    const auto *label = RunningApp::Find<QLabel>("labelWait");
    QPointer<QMovie> light = label->movie();
    QCOMPARE(light->fileName(), QStringLiteral(":/wait_indicator.gif"));
    QVERIFY(light->state() != QMovie::Running); // hidden: nobody sees it, so it costs nothing
    running.app.SetStyle(2);
    QVERIFY(!light);
    QCOMPARE(label->movie()->fileName(), QStringLiteral(":/wait_indicator_dark.gif"));
}

void TestMainWindow::freeingRun_data()
{
    QTest::addColumn<QByteArray>("helper");
    QTest::addColumn<int>("nFreeAfter");
    QTest::addColumn<QString>("result");
    QTest::newRow("gain") << QByteArray("echo freed") << 1256 << "1.0 MB";
    QTest::newRow("loss") << QByteArray("exit 3") << 900 << "0 bytes";
}

void TestMainWindow::freeingRun()
{
    QFETCH(QByteArray, helper);
    QFETCH(int, nFreeAfter);
    RunningApp running(RunningApp::Report(1000, 2000, 1, 1));
    const QString log =
        QDir::tempPath() + QStringLiteral("/kelvo-test-memfree-%1").arg(QCoreApplication::applicationPid());
    const BundledFake memfree(QStringLiteral("memfree"),
                              "echo $* >" + log.toUtf8() + "\nsleep 0.2\n" + helper);

    auto *button = RunningApp::Find<QPushButton>("pushButtonGo");
    const auto *wait = RunningApp::Find<QLabel>("labelWait");
    const auto *result = RunningApp::Find<QWidget>("widgetResult");
    QVERIFY(!wait->isVisible() && !result->isVisible());
    button->click();
    QTRY_VERIFY(wait->isVisible() && !button->isEnabled());
    QCOMPARE(wait->movie()->state(), QMovie::Running);
    running.interpreter.Write(RunningApp::Script(RunningApp::Report(nFreeAfter, 2000, 1, 1)));
    Window()->OnTimeOut(); // no sample while the helper works
    QCOMPARE(Text("labelFree"), QStringLiteral("3.9 MB"));

    QTRY_VERIFY(result->isVisible());
    QVERIFY(button->isEnabled() && !wait->isVisible());
    QTEST(Text("labelReturned"), "result");
    QCOMPARE(RunningApp::Stored(QStringLiteral("Application/ExecCount")).toInt(), 1);
    QFile file(log);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().trimmed(), QByteArray::number(3000LL * 4096 + 104857600));
    QFile::remove(log);
    Window()->Reset();
    QVERIFY(!result->isVisible());
}

void TestMainWindow::warningComesOnce_data()
{
    QTest::addColumn<bool>("bTicked");
    QTest::newRow("for this run") << false;
    QTest::newRow("for good") << true;
}

void TestMainWindow::warningComesOnce()
{
    QFETCH(bool, bTicked);
    RunningApp::Store(QStringLiteral("MainWindow/Warning"), false);
    {
        RunningApp running;
        const BundledFake memfree(QStringLiteral("memfree"), "sleep 0.3");
        int nWarnings = 0;
        QTimer::singleShot(200, [&] {
            running.app.OnFreeMemory(); // again, with the warning open
            const auto windows = QApplication::topLevelWidgets();
            for (QWidget *window : windows) {
                if (auto *warning = qobject_cast<DialogWarning *>(window)) {
                    ++nWarnings;
                    RunningApp::Find<QCheckBox>("checkBoxDoNotShow")->setChecked(bTicked);
                    warning->reject();
                }
            }
        });
        // Both clicks of a double click.
        auto *button = RunningApp::Find<QPushButton>("pushButtonGo");
        button->click();
        button->click();
        QTRY_VERIFY(IsFreeing());
        QCOMPARE(nWarnings, 1);
        QTRY_VERIFY(!IsFreeing());
        running.app.OnFreeMemory();
        QVERIFY(IsFreeing()); // no warning any more
        QTRY_COMPARE(RunningApp::Stored(QStringLiteral("Application/ExecCount")).toInt(), 2);
    }
    QCOMPARE(RunningApp::Stored(QStringLiteral("MainWindow/Warning")).toBool(), bTicked);
}

void TestMainWindow::quitDuringTheWarningFreesNothing()
{
    RunningApp::Store(QStringLiteral("MainWindow/Warning"), false);
    RunningApp running;
    const QString trace =
        QDir::tempPath() + QStringLiteral("/kelvo-test-freed-%1").arg(QCoreApplication::applicationPid());
    const BundledFake memfree(QStringLiteral("memfree"), "touch " + trace.toUtf8());
    QTimer::singleShot(0, &running.app, SLOT(OnFreeMemory()));
    QTimer::singleShot(300, &running.app, SLOT(quit()));
    QTimer::singleShot(5000, &running.app, [] { QCoreApplication::exit(99); });
    QCOMPARE(QApplication::exec(), 0);
    QTest::qSleep(200);
    QVERIFY(!QFile::exists(trace));
}

void TestMainWindow::watchdog()
{
    RunningApp running;
    const BundledFake memfree(QStringLiteral("memfree"), "exec sleep 60");
    Window()->OnFreeMem();
    QTest::qWait(100);
    QTest::ignoreMessage(QtDebugMsg, "terminated");
    // The thread's end is long in coming: told only when its successor is there already.
    connect(Window()->findChild<TerminableThread *>(), &TerminableThread::terminated,
            [] { QTest::qSleep(150); });
    Window()->Abort();
    QTRY_VERIFY(!IsFreeing());
    QTest::qWait(200);
    QCOMPARE(Text("labelReturned"), QStringLiteral("N/A")); // the late end of the aborted run changes nothing
    QVERIFY(!RunningApp::Stored(QStringLiteral("Application/ExecCount")).isValid());

    const BundledFake second(QStringLiteral("memfree"), "echo done");
    Window()->OnFreeMem(); // and the fresh worker works
    QTRY_COMPARE(Text("labelReturned"), QStringLiteral("0 bytes"));
}

QTEST_APPLESS_MAIN(TestMainWindow)
#include "TestMainWindow.moc"
