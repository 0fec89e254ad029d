// The main window: alone, what it draws when, and the odd ways of a freeing run.

#include "dialogs/DialogWarning.h"
#include "freeing/WorkerThread.h"
#include "tests/support/RunningApp.h"

#include <QCheckBox>
#include <QLabel>
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
        QCoreApplication::setOrganizationName("Orvanta");
        const FakeReport report(1000, 20, 30, 7);
        QSettings().setValue("Application/StartCount", std::numeric_limits<int>::max());
        MainDialog window(nullptr);
        QCOMPARE(Text("labelFree"), "3.9 MB");
        QCOMPARE(Text("labelUsed"), "228 KB");
        report.Set(500, 20, 30, 7);
        window.OnTimeOut();
        QCOMPARE(Text("labelFree"), "2.0 MB");
        QCOMPARE(QSettings().value("Application/StartCount"), std::numeric_limits<int>::max());
    }

    void drawnWhenItCanBeSeen()
    {
        const RunningApp running;
        auto *label = RunningApp::Find<QLabel>("labelPieChart");
        const auto left = [&] { return label->pixmap(Qt::ReturnByValue).toImage().pixelColor(18, 36); };
        QCOMPARE(left(), QColor(Qt::green));
        Window()->hide();
        running.report.Set(0, 0, 0, 100);
        Window()->UpdateStats();
        QCOMPARE(left(), QColor(Qt::green));
        for (int i = 0; i < 2; ++i) { // also when nothing has changed
            label->clear();
            Window()->UpdateStats(true);
            QCOMPARE(left(), QColor(Qt::red));
        }
        running.report.Set(100, 0, 0, 0);
        Window()->show();
        Window()->UpdateStats();
        QCOMPARE(left(), QColor(Qt::green));
    }

    /// Whoever calls or sends, the whole work is done, and nobody is deleted.
    void finishedByOthers()
    {
        const RunningApp running;
        QObject holder;
        const QPointer<QThread> own = Window()->findChild<WorkerThread *>();
        const QPointer<QThread> foreign = new WorkerThread(&holder);
        const QPointer<QThread> child = new QThread(Window());
        auto *result = RunningApp::Find<QWidget>("widgetResult");
        Window()->OnFinished();
        for (QThread *sender : {foreign.data(), child.data()}) {
            Window()->Reset();
            Button()->setEnabled(false);
            connect(sender, SIGNAL(finished()), Window(), SLOT(OnFinished()));
            QMetaObject::invokeMethod(sender, "finished");
            QVERIFY(result->isVisible() && Button()->isEnabled());
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(own && foreign && child);
        QCOMPARE(RunningApp::Store().value("Application/ExecCount"), 3);
    }

    void watchdog()
    {
        const RunningApp running;
        const BundledFake memfree("memfree", "exec sleep 60");
        const QPointer<WorkerThread> aborted = Window()->findChild<WorkerThread *>();
        Window()->OnFreeMem();
        QTest::ignoreMessage(QtDebugMsg, "terminated");
        // The thread's end is long in coming: told only when its successor is there already.
        connect(aborted, &WorkerThread::terminated, [] { QTest::qSleep(150); });
        Window()->Abort();
        QTRY_VERIFY(!aborted);
        QCOMPARE(Text("labelReturned"), "N/A");
        QVERIFY(!RunningApp::Store().contains("Application/ExecCount"));
        memfree.Write("echo done");
        Window()->OnFreeMem(); // and the fresh worker works
        QTRY_COMPARE(Text("labelReturned"), "0 bytes");
    }

private:
    static QString Text(const char *label) { return RunningApp::Find<QLabel>(label)->text(); }
    static QPushButton *Button() { return RunningApp::Find<QPushButton>("pushButtonGo"); }
    static MainDialog *Window() { return RunningApp::Find<MainDialog>(); }
};

QTEST_APPLESS_MAIN(TestMainWindow)
#include "TestMainWindow.moc"
