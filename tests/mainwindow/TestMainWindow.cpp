// The main window: what it draws when, and a freeing run from click to result.

#include "dialogs/DialogWarning.h"
#include "freeing/TerminableThread.h"
#include "tests/support/RunningApp.h"

#include <QCheckBox>
#include <QLabel>
#include <QMovie>
#include <QPushButton>

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FailOnWarnings();
        RunningApp::ForgetSettings();
        RunningApp::Store(QStringLiteral("MainWindow/Warning"), true);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }

    void drawnWhenItCanBeSeen()
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

        const auto *wait = RunningApp::Find<QLabel>("labelWait");
        QPointer<QMovie> light = wait->movie();
        QCOMPARE(light->fileName(), QStringLiteral(":/wait_indicator.gif"));
        QVERIFY(light->state() != QMovie::Running); // hidden: nobody sees it, so it costs nothing
        running.app.SetStyle(2);
        QVERIFY(!light);
        QCOMPARE(wait->movie()->fileName(), QStringLiteral(":/wait_indicator_dark.gif"));
    }

    void freeingRun()
    {
        RunningApp running(RunningApp::Report(1000, 2000, 1, 1));
        const BundledFake memfree(QStringLiteral("memfree"), "echo $* >$0.log; sleep 0.2; exit 3");
        auto *button = RunningApp::Find<QPushButton>("pushButtonGo");
        const auto *wait = RunningApp::Find<QLabel>("labelWait");
        const auto *result = RunningApp::Find<QWidget>("widgetResult");
        QVERIFY(!wait->isVisible() && !result->isVisible());
        button->click();
        QTRY_VERIFY(wait->isVisible() && !button->isEnabled());
        QCOMPARE(wait->movie()->state(), QMovie::Running);
        running.interpreter.Write(RunningApp::Script(RunningApp::Report(900, 2000, 1, 1)));
        Window()->OnTimeOut(); // no sample while the helper works
        QCOMPARE(Text("labelFree"), QStringLiteral("3.9 MB"));

        QTRY_VERIFY(result->isVisible());
        QVERIFY(button->isEnabled() && !wait->isVisible());
        QCOMPARE(Text("labelReturned"), QStringLiteral("0 bytes")); // a loss is no gain
        QCOMPARE(RunningApp::Stored(QStringLiteral("Application/ExecCount")).toInt(), 1);
        QFile log(memfree.path + ".log");
        QVERIFY(log.open(QIODevice::ReadOnly));
        QCOMPARE(log.readAll().trimmed(), QByteArray::number(3000LL * 4096 + 104857600));
        log.remove();
        Window()->Reset();
        QVERIFY(!result->isVisible());
    }

    void warningComesOnce()
    {
        for (const bool bTicked : {false, true}) {
            RunningApp::ForgetSettings();
            {
                RunningApp running;
                const BundledFake memfree(QStringLiteral("memfree"), "sleep 0.3");
                QTimer::singleShot(200, [&] {
                    running.app.OnFreeMemory(); // again, with the warning open
                    QVERIFY(RunningApp::Window<DialogWarning>());
                    RunningApp::Find<QCheckBox>("checkBoxDoNotShow")->setChecked(bTicked);
                    RunningApp::Window<DialogWarning>()->reject();
                });
                RunningApp::Find<QPushButton>("pushButtonGo")->click();
                RunningApp::Find<QPushButton>("pushButtonGo")->click(); // a double click
                QTRY_VERIFY(IsFreeing());
                QTRY_VERIFY(!IsFreeing());
                running.app.OnFreeMemory();
                QVERIFY(IsFreeing()); // no warning any more
                QTRY_COMPARE(RunningApp::Stored(QStringLiteral("Application/ExecCount")).toInt(), 2);
            }
            QCOMPARE(RunningApp::Stored(QStringLiteral("MainWindow/Warning")).toBool(), bTicked);
        }
    }

    void quitDuringTheWarningFreesNothing()
    {
        RunningApp::Store(QStringLiteral("MainWindow/Warning"), false);
        RunningApp running;
        const BundledFake memfree(QStringLiteral("memfree"), "touch $0.ran");
        QTimer::singleShot(0, &running.app, SLOT(OnFreeMemory()));
        QTimer::singleShot(300, &running.app, SLOT(quit()));
        QTimer::singleShot(5000, &running.app, [] { QCoreApplication::exit(99); });
        QCOMPARE(QApplication::exec(), 0);
        QTest::qSleep(200);
        QVERIFY(!QFile::remove(memfree.path + ".ran"));
    }

    void watchdog()
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
        // The late end of the aborted run changes nothing.
        QCOMPARE(Text("labelReturned"), QStringLiteral("N/A"));
        QVERIFY(!RunningApp::Stored(QStringLiteral("Application/ExecCount")).isValid());

        const BundledFake second(QStringLiteral("memfree"), "echo done");
        Window()->OnFreeMem(); // and the fresh worker works
        QTRY_COMPARE(Text("labelReturned"), QStringLiteral("0 bytes"));
    }

private:
    static QString Text(const char *label) { return RunningApp::Find<QLabel>(label)->text(); }
    static bool IsFreeing() { return !RunningApp::Find<QPushButton>("pushButtonGo")->isEnabled(); }
    static MainDialog *Window() { return RunningApp::Window<MainDialog>(); }
};

QTEST_APPLESS_MAIN(TestMainWindow)
#include "TestMainWindow.moc"
