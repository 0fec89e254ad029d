// The main window: alone, what it draws when, and a freeing run from click to result.

#include "dialogs/DialogWarning.h"
#include "freeing/WorkerThread.h"
#include "tests/support/RunningApp.h"

#include <QCheckBox>
#include <QLabel>
#include <QMovie>
#include <QPushButton>

#include <limits>

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FailOnWarnings();
        RunningApp::Store().clear();
        RunningApp::Store().setValue("MainWindow/Warning", true);
    }

    void standsAlone()
    {
        const QApplication app(RunningApp::count, RunningApp::arguments);
        BundledFake::InPath();
        const BundledFake vmStat("vm_stat", RunningApp::Report(1000, 20, 30, 7));
        QCoreApplication::setOrganizationName("Orvanta");
        QCoreApplication::setApplicationName("Kelvo");
        RunningApp::Store().setValue("Application/StartCount", std::numeric_limits<int>::max());
        MainDialog window(nullptr);
        window.show();
        QCOMPARE(Text("labelFree"), "3.9 MB");
        QCOMPARE(Text("labelUsed"), "228 KB");
        vmStat.Write(RunningApp::Report(500, 20, 30, 7));
        window.OnTimeOut();
        QCOMPARE(Text("labelFree"), "2.0 MB");
        QCOMPARE(RunningApp::Store().value("Application/StartCount"), std::numeric_limits<int>::max());
    }

    void drawnWhenItCanBeSeen()
    {
        const RunningApp running(RunningApp::Report(100, 0, 0, 100));
        auto *label = RunningApp::Find<QLabel>("labelPieChart");
        const auto left = [&] { return label->pixmap(Qt::ReturnByValue).toImage().pixelColor(18, 36); };
        QCOMPARE(left(), QColor(Qt::green));
        Window()->hide();
        running.Sample(RunningApp::Report(0, 0, 0, 100));
        QCOMPARE(left(), QColor(Qt::green));
        for (int i = 0; i < 2; ++i) { // forced, also when nothing has changed
            label->clear();
            Window()->UpdateStats(true);
            QCOMPARE(left(), QColor(Qt::red));
        }
        Window()->show();
        running.Sample(RunningApp::Report(100, 0, 0, 100));
        QCOMPARE(left(), QColor(Qt::green));

        const auto *wait = RunningApp::Find<QLabel>("labelWait");
        const QPointer<QMovie> light = wait->movie();
        QVERIFY(light->state() != QMovie::Running); // hidden: nobody sees it, so it costs nothing
        Window()->SetStyle(2);
        QVERIFY(!light);
        QCOMPARE(wait->movie()->fileName(), QStringLiteral(":/wait_indicator_dark.gif"));
    }

    void freeingRun()
    {
        const RunningApp running(RunningApp::Report(1000, 2000, 1, 1));
        const BundledFake memfree("memfree", "echo $* >$0.log; sleep 0.2; exit 3");
        const auto *wait = RunningApp::Find<QLabel>("labelWait");
        Button()->click();
        QTRY_VERIFY(wait->isVisible() && !Button()->isEnabled());
        QCOMPARE(wait->movie()->state(), QMovie::Running);
        running.vmStat.Write(RunningApp::Report(900, 2000, 1, 1));
        Window()->OnTimeOut(); // no sample while the helper works
        QCOMPARE(Text("labelFree"), "3.9 MB");
        QTRY_VERIFY(Button()->isEnabled() && !wait->isVisible());
        QCOMPARE(Text("labelReturned"), "0 bytes"); // a loss is no gain
        QFile log(memfree.path + ".log");
        QVERIFY(log.open(QIODevice::ReadOnly));
        QCOMPARE(log.readAll().trimmed(), QByteArray::number(3000LL * 4096 + 104857600));
        log.remove();
    }

    /// Whoever calls or sends, the whole work is done, and nobody is deleted.
    void finishedByOthers()
    {
        const RunningApp running;
        QObject holder;
        const QPointer<WorkerThread> ours = Window()->findChild<WorkerThread *>();
        const QPointer<QThread> foreign = new WorkerThread(&holder);
        const QPointer<QThread> child = new QThread(Window());
        int runs = 0;
        for (QThread *sender : {static_cast<QThread *>(nullptr), foreign.data(), child.data()}) {
            RunningApp::Find<QWidget>("widgetResult")->hide();
            Button()->setEnabled(false);
            if (sender) {
                connect(sender, SIGNAL(finished()), Window(), SLOT(OnFinished()));
                QMetaObject::invokeMethod(sender, "finished");
            } else {
                Window()->OnFinished();
            }
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(RunningApp::Find<QWidget>("widgetResult")->isVisible() && Button()->isEnabled());
            QCOMPARE(RunningApp::Store().value("Application/ExecCount"), ++runs);
            QVERIFY(ours && foreign && child);
        }
    }

    void watchdog()
    {
        const RunningApp running;
        const BundledFake memfree("memfree", "exec sleep 60");
        const QPointer<WorkerThread> aborted = Window()->findChild<WorkerThread *>();
        Window()->OnFreeMem();
        QTest::qWait(100);
        QTest::ignoreMessage(QtDebugMsg, "terminated");
        // The thread's end is long in coming: told only when its successor is there already.
        connect(aborted, &WorkerThread::terminated, [] { QTest::qSleep(150); });
        Window()->Abort();
        QTRY_VERIFY(!aborted);
        // The late end of the aborted run changes nothing.
        QCOMPARE(Text("labelReturned"), "N/A");
        QVERIFY(!RunningApp::Store().contains("Application/ExecCount"));
        memfree.Write("echo done");
        Window()->OnFreeMem(); // and the fresh worker works
        QTRY_COMPARE(Text("labelReturned"), "0 bytes");
    }

    void warningComesOnce()
    {
        for (const bool bTicked : {false, true}) {
            RunningApp::Store().clear();
            {
                RunningApp running;
                const BundledFake memfree("memfree", "sleep 0.3");
                QTimer::singleShot(200, [&] {
                    running.app.OnFreeMemory(); // again, with the warning open
                    RunningApp::Find<QCheckBox>("checkBoxDoNotShow")->setChecked(bTicked);
                    RunningApp::Find<DialogWarning>()->reject();
                });
                Button()->click();
                Button()->click(); // a double click
                QTRY_VERIFY(!Button()->isEnabled());
                QTRY_VERIFY(Button()->isEnabled());
                running.app.OnFreeMemory();
                QVERIFY(!Button()->isEnabled()); // no warning any more
                QTRY_COMPARE(RunningApp::Store().value("Application/ExecCount"), 2);
            }
            QCOMPARE(RunningApp::Store().value("MainWindow/Warning").toBool(), bTicked);
        }
    }

    void quitDuringTheWarningFreesNothing()
    {
        RunningApp::Store().clear();
        RunningApp running;
        const BundledFake memfree("memfree", "touch $0.ran");
        QTimer::singleShot(0, &running.app, SLOT(OnFreeMemory()));
        QTimer::singleShot(300, &running.app, SLOT(quit()));
        QTimer::singleShot(5000, &running.app, [] { QCoreApplication::exit(99); });
        QCOMPARE(QApplication::exec(), 0);
        QTest::qSleep(200);
        QVERIFY(!QFile::remove(memfree.path + ".ran"));
    }

private:
    static QString Text(const char *label) { return RunningApp::Find<QLabel>(label)->text(); }
    static QPushButton *Button() { return RunningApp::Find<QPushButton>("pushButtonGo"); }
    static MainDialog *Window() { return RunningApp::Find<MainDialog>(); }
};

QTEST_APPLESS_MAIN(TestMainWindow)
#include "TestMainWindow.moc"
