// The main window: what a sample shows, the mouse, its timers and state, and a freeing run from click to
// result.

#include "dialogs/DialogWarning.h"
#include "tests/support/RunningApp.h"

#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QMovie>
#include <QPushButton>
#include <QSignalSpy>

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void slotsOfTheWindow();
    void labelsOfASample();
    void labelsOfNothing();
    void chartIsDrawnWhenItCanBeSeen();
    void dragging();
    void closeMark();
    void positionIsKept_data();
    void positionIsKept();
    void waitIndicatorFollowsTheStyle();
    void freeingRun_data();
    void freeingRun();
    void secondRequestIsIgnored();
    void warningComesOnce_data();
    void warningComesOnce();
    void quitDuringTheWarningFreesNothing();
    void watchdog();
    void autoHide();
    void feedbackPrompt_data();
    void feedbackPrompt();

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

void TestMainWindow::slotsOfTheWindow()
{
    QStringList methods;
    const QMetaObject &meta = MainDialog::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods << QString::fromLatin1(meta.method(i).methodSignature());
    }
    QCOMPARE(methods, QStringList({"OnFreeMem()", "OnFinished()", "OnTerminated()", "OnFailed()",
                                   "OnTimeOut()", "UpdateStats(bool)", "UpdateStats()", "SetAutoHide(bool)",
                                   "SetUpdateFrequency(int)", "RemindFeedback()", "Abort()", "Reset()"}));
}

void TestMainWindow::labelsOfASample()
{
    // 8,584,000,000 bytes and a bit in all: the bias makes 7.99 GB read 8.00.
    const RunningApp running(RunningApp::Report(256, 512, 1048576, 1045961));
    QCOMPARE(Text("labelFree"), QStringLiteral("1.0 MB"));
    QCOMPARE(Text("labelInactive"), QStringLiteral("2.0 MB"));
    QCOMPARE(Text("labelActive"), QStringLiteral("4.00 GB"));
    QCOMPARE(Text("labelWired"), QStringLiteral("3.99 GB"));
    QCOMPARE(Text("labelUsed"), QStringLiteral("7.99 GB"));
    QCOMPARE(Text("labelTotal"), QStringLiteral("8.00 GB"));
}

void TestMainWindow::labelsOfNothing()
{
    const RunningApp running{QByteArray()};
    for (const char *label : {"labelFree", "labelInactive", "labelActive", "labelWired", "labelUsed"}) {
        QCOMPARE(Text(label), QStringLiteral("0 bytes"));
    }
    QCOMPARE(Text("labelTotal"), QStringLiteral("5.1 MB"));
    QVERIFY(!Window()->CreatePieChart().isNull());
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

void TestMainWindow::dragging()
{
    const RunningApp running;
    MainDialog *window = Window();
    window->move(200, 150);
    const auto mouse = [&](QEvent::Type type, const QPoint &global, Qt::MouseButtons buttons) {
        QMouseEvent event(type, window->mapFromGlobal(global), global,
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &event);
    };
    mouse(QEvent::MouseButtonPress, {260, 250}, Qt::LeftButton);
    mouse(QEvent::MouseMove, {300, 240}, Qt::LeftButton);
    QCOMPARE(window->pos(), QPoint(240, 140));
    mouse(QEvent::MouseButtonRelease, {300, 240}, Qt::NoButton);
    mouse(QEvent::MouseMove, {10, 10}, Qt::NoButton);
    QCOMPARE(window->pos(), QPoint(240, 140));
}

void TestMainWindow::closeMark()
{
    const RunningApp running;
    MainDialog *window = Window();
    const auto pixel = [&](const QPoint &at) { return window->grab().toImage().pixelColor(at); };
    const auto mark = [&] { return pixel({6, 11}); };
    const auto hover = [&](bool bOver) {
        QEnterEvent enter(QPointF(9, 9), QPointF(9, 9), QPointF(9, 9));
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(window, bOver ? static_cast<QEvent *>(&enter) : &leave);
    };
    const QColor ground = mark();
    const QColor grey(165, 165, 165);
    hover(true);
    QCOMPARE(mark(), ground); // none with a title bar
    QTest::mouseClick(window, Qt::LeftButton, {}, {11, 11});
    QVERIFY(window->isVisible());

    window->setWindowFlags(window->windowFlags() | Qt::FramelessWindowHint);
    window->show();
    hover(true);
    QCOMPARE(mark(), grey);
    for (const QPoint &crossed : {QPoint(9, 9), QPoint(12, 12), QPoint(9, 12), QPoint(12, 9)}) {
        QCOMPARE(pixel(crossed), ground);
    }
    hover(false);
    QCOMPARE(mark(), ground);
    QTest::mouseClick(window, Qt::LeftButton, {}, {30, 30});
    QTest::mouseClick(window, Qt::RightButton, {}, {11, 11});
    QVERIFY(window->isVisible());
    QTest::mouseClick(window, Qt::LeftButton, {}, {11, 11});
    QVERIFY(!window->isVisible());
}

void TestMainWindow::positionIsKept_data()
{
    QTest::addColumn<QPoint>("stored");
    QTest::newRow("somewhere") << QPoint(310, 95);
    QTest::newRow("one coordinate is enough") << QPoint(0, 250);
}

void TestMainWindow::positionIsKept()
{
    QFETCH(QPoint, stored);
    const QString key = QStringLiteral("MainWindow/Position");
    RunningApp::Store(key, stored);
    {
        const RunningApp running;
        QTest::qWait(500); // the placement watches the window for a moment after it is shown
        QCOMPARE(Window()->pos(), stored);
        Window()->move(77, 88);
    }
    QCOMPARE(RunningApp::Stored(key).toPoint(), QPoint(77, 88));
    QCOMPARE(RunningApp::Stored(QStringLiteral("MainWindow/Warning")), QVariant(QStringLiteral("true")));
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
    QTest::addColumn<bool>("bFails");
    QTest::newRow("gain") << QByteArray("echo freed") << 1256 << "1.0 MB" << false;
    QTest::newRow("nothing") << QByteArray("exit 3") << 1000 << "0 bytes" << false;
    QTest::newRow("loss") << QByteArray("exit 0") << 900 << "0 bytes" << false;
    QTest::newRow("crash") << QByteArray("kill -SEGV $$") << 1000 << "0 bytes" << true;
}

void TestMainWindow::freeingRun()
{
    QFETCH(QByteArray, helper);
    QFETCH(int, nFreeAfter);
    QFETCH(bool, bFails);
    RunningApp running(RunningApp::Report(1000, 2000, 1, 1));
    const QString log =
        QDir::tempPath() + QStringLiteral("/kelvo-test-memfree-%1").arg(QCoreApplication::applicationPid());
    const BundledFake memfree(QStringLiteral("memfree"),
                              "echo $* >" + log.toUtf8() + "\nsleep 0.2\n" + helper);

    auto *button = RunningApp::Find<QPushButton>("pushButtonGo");
    const auto *wait = RunningApp::Find<QLabel>("labelWait");
    const auto *result = RunningApp::Find<QWidget>("widgetResult");
    QVERIFY(!wait->isVisible() && !result->isVisible());
    QString failure;
    QTimer::singleShot(700, [&] {
        if (auto *box = RunningApp::Window<QMessageBox>()) {
            failure = box->text();
            box->close();
        }
    });
    if (bFails) {
        QTest::ignoreMessage(QtDebugMsg, "Failed");
    }
    button->click();
    QTRY_VERIFY(wait->isVisible() && !button->isEnabled());
    QCOMPARE(wait->movie()->state(), QMovie::Running);
    running.interpreter.Write(RunningApp::Script(RunningApp::Report(nFreeAfter, 2000, 1, 1)));
    Window()->OnTimeOut(); // no sample while the helper works
    QCOMPARE(Text("labelFree"), QStringLiteral("3.9 MB"));

    QTRY_VERIFY(result->isVisible());
    QVERIFY(button->isEnabled() && !wait->isVisible());
    QTEST(Text("labelReturned"), "result");
    QTRY_COMPARE(failure, bFails ? QStringLiteral("Failed to free memory.") : QString());
    QCOMPARE(RunningApp::Stored(QStringLiteral("Application/ExecCount")).toInt(), 1);
    QFile file(log);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().trimmed(), QByteArray::number(3000LL * 4096 + 104857600));
    QFile::remove(log);
    Window()->Reset();
    QVERIFY(!result->isVisible());
}

void TestMainWindow::secondRequestIsIgnored()
{
    RunningApp running;
    const BundledFake memfree(QStringLiteral("memfree"), "sleep 0.3");
    running.app.OnFreeMemory();
    QVERIFY(IsFreeing());
    running.Sample(RunningApp::Report(5000, 20, 30, 7));
    running.app.OnFreeMemory();
    QTRY_VERIFY(!IsFreeing());
    // Measured against the first request's figure, and only one run has ended.
    QCOMPARE(Text("labelReturned"), QStringLiteral("15.6 MB"));
    QTest::qWait(400);
    QCOMPARE(RunningApp::Stored(QStringLiteral("Application/ExecCount")).toInt(), 1);
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
    Window()->Abort();
    QTRY_VERIFY(!IsFreeing());
    QTest::qWait(200);
    QCOMPARE(Text("labelReturned"), QStringLiteral("N/A")); // the late end of the aborted run changes nothing
    QVERIFY(!RunningApp::Stored(QStringLiteral("Application/ExecCount")).isValid());

    const BundledFake second(QStringLiteral("memfree"), "echo done");
    Window()->OnFreeMem(); // and the fresh worker works
    QTRY_COMPARE(Text("labelReturned"), QStringLiteral("0 bytes"));
}

void TestMainWindow::autoHide()
{
    RunningApp running;
    const BundledFake memfree(QStringLiteral("memfree"), "echo done");
    Window()->SetAutoHide(true);
    running.app.OnFreeMemory();
    QTRY_VERIFY(!RunningApp::Find<QWidget>("widgetResult")->isHidden());
    QTest::qWait(800);
    QVERIFY(Window()->isVisible()); // time to read the result
    QTRY_VERIFY(!Window()->isVisible());
    Window()->show();
    QTRY_VERIFY(!Window()->isVisible()); // every second, until something stops it
    Window()->SetAutoHide(false);
    Window()->show();
    QTest::qWait(1200);
    QVERIFY(Window()->isVisible());
}

void TestMainWindow::feedbackPrompt_data()
{
    QTest::addColumn<int>("nStarts");
    QTest::addColumn<bool>("bPrompt");
    QTest::newRow("16th start") << 15 << false;
    QTest::newRow("17th start") << 16 << true;
}

void TestMainWindow::feedbackPrompt()
{
    QFETCH(int, nStarts);
    QFETCH(bool, bPrompt);
    RunningApp::Store(QStringLiteral("Application/StartCount"), nStarts);
    const RunningApp running;
    QCOMPARE(RunningApp::Stored(QStringLiteral("Application/StartCount")).toInt(), nStarts + 1);
    bool bStoredBeforehand = false;
    QTimer::singleShot(2200, [&] {
        if (auto *box = RunningApp::Window<QMessageBox>()) {
            bStoredBeforehand = RunningApp::Stored(QStringLiteral("Application/Feedback")).toBool();
            QTest::keyClick(box, Qt::Key_Escape);
        }
    });
    QTest::qWait(2400);
    QCOMPARE(bStoredBeforehand, bPrompt);
    if (bPrompt) {
        Window()->RemindFeedback(); // never twice: this returns at once
    }
}

QTEST_APPLESS_MAIN(TestMainWindow)
#include "TestMainWindow.moc"
