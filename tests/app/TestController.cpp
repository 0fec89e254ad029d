// The controller with all its windows, over a fake interpreter: settings, menu, reminder, ends.

#include "tests/support/RunningApp.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>

class TestController : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void metaObject();
    void firstStart();
    void storedSettingsAreApplied();
    void settingsApplyAtOnce();
    void framelessComesBackInPlace();
    void everySettingGoesItsWay();
    void readableOnADarkDesktop();
    void recordIsSavedAtTheEnd();
    void menu();
    void menuFollowsTheSamples();
    void swatch();
    void showingTheMainWindow();
    void systemQuitRequest();
    void reminder();
    void reminderAnswers();

private:
    static QStringList MenuTexts(const QMenu *menu);
    static void Click(const char *name) { RunningApp::Find<QAbstractButton>(name)->click(); }
    static void Apply() { QCoreApplication::sendPostedEvents(); }
};

void TestController::init()
{
    FailOnWarnings();
    RunningApp::ForgetSettings();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void TestController::metaObject()
{
    QStringList methods;
    const QMetaObject &meta = MyApp::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods << QString::fromLatin1(meta.method(i).methodSignature());
    }
    QCOMPARE(methods, QStringList({"OnShowMainDialog()", "OnFreeMemory()", "OnPreferences()",
                                   "OnSettingChanged()", "OnDoNotRemind()", "OnRemindRejected()",
                                   "OnMessageReceived(QString)", "ResetReminder()"}));
}

void TestController::firstStart()
{
    const RunningApp running;
    const auto *window = RunningApp::Window<MainDialog>();
    QVERIFY(window->isVisible());
    QCOMPARE(window->windowTitle(), QStringLiteral("Kelvo"));
    QVERIFY(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(!window->windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(running.app.styleSheet().contains(QStringLiteral("#aaaa00")));
    QCOMPARE(RunningApp::Stored(QStringLiteral("Application/StartCount")).toInt(), 1);
    QVERIFY(!RunningApp::Stored(QStringLiteral("Application/StartUpMessageShown")).isValid());
}

void TestController::storedSettingsAreApplied()
{
    RunningApp::Store(QStringLiteral("Application/Settings"),
                      QVariantMap{{QStringLiteral("WindowStyle"), 2},
                                  {QStringLiteral("StayOnTop"), QStringLiteral("true")},
                                  {QStringLiteral("NoTitleBar"), true},
                                  {QStringLiteral("UpdateFrequency"), 7}});
    {
        const RunningApp running;
        const auto *window = RunningApp::Window<MainDialog>();
        QVERIFY(running.app.styleSheet().contains(QStringLiteral("#6666ff")));
        QVERIFY(window->windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    }
    const QVariantMap record = RunningApp::Stored(QStringLiteral("Application/Settings")).toMap();
    QCOMPARE(record.size(), 11);
    QCOMPARE(record[QStringLiteral("WindowStyle")], QVariant(1)); // the panel's copy replaced the record
}

void TestController::settingsApplyAtOnce()
{
    const RunningApp running;
    auto *window = RunningApp::Window<MainDialog>();
    const QPoint position = window->pos();
    Click("radioButtonStyleDark");
    Apply();
    QVERIFY(running.app.styleSheet().contains(QStringLiteral("#6666ff")));
    Click("checkBoxStayOnTop");
    Apply();
    QVERIFY(!window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(window->isVisible());
    QCOMPARE(window->pos(), position);

    // A setting that concerns no flag leaves the window alone.
    const QSignalSpy hidden(window->windowHandle(), SIGNAL(visibleChanged(bool)));
    Click("checkBoxRemind");
    Apply();
    QCOMPARE(hidden.count(), 0);
}

void TestController::framelessComesBackInPlace()
{
    const RunningApp running;
    auto *window = RunningApp::Window<MainDialog>();
    window->move(123, 77);
    Click("checkBoxNoTitleBar");
    Apply();
    QVERIFY(window->isVisible());
    QVERIFY(window->windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(window->pos(), QPoint(123, 77));
}

void TestController::everySettingGoesItsWay()
{
    RunningApp running;
    const QString log =
        QDir::tempPath() + QStringLiteral("/kelvo-test-calls-%1").arg(QCoreApplication::applicationPid());
    running.interpreter.Write("echo $(cat) >>" + log.toUtf8() + "; echo 'Pages free: 1.'");
    const auto calls = [&](const QByteArray &what) {
        QFile file(log);
        return file.open(QIODevice::ReadOnly) ? file.readAll().count(what) : 0;
    };
    Click("checkBoxAutoLaunch");
    Apply();
    QCOMPARE(calls("make login item"), 1);
    QCOMPARE(calls("vm_stat"), 1); // and a sample at once
    Click("checkBoxMonoColor");    // the login item goes with every setting
    Apply();
    QCOMPARE(calls("make login item"), 2);
    Click("checkBoxAutoLaunch");
    Apply();
    QCOMPARE(calls("delete login item"), 1);

    const auto samplesIn = [&](int ms) {
        const auto nBefore = calls("vm_stat");
        QTest::qWait(ms);
        return calls("vm_stat") - nBefore;
    };
    RunningApp::Find<QComboBox>("comboBoxFrequency")->setCurrentIndex(1);
    Apply();
    QCOMPARE(samplesIn(4500), 0);
    RunningApp::Find<QComboBox>("comboBoxFrequency")->setCurrentIndex(0);
    Apply();
    QCOMPARE(samplesIn(4500), 2);
    QFile::remove(log);
}

void TestController::readableOnADarkDesktop()
{
    const QPalette light = QApplication::palette();
    {
        RunningApp running;
        QApplication::setPalette(QPalette(QColor(40, 40, 44)));
        running.app.SetStyle(0);
        Click("checkBoxNoTitleBar"); // new flags polish the window anew
        Apply();
        const auto *label = RunningApp::Find<QLabel>("labelInactive");
        const auto gray = [](const QWidget *widget, QPalette::ColorRole role) {
            return qGray(widget->palette().color(role).rgb());
        };
        QVERIFY(qAbs(gray(label, QPalette::WindowText) - gray(label->window(), QPalette::Window)) > 100);
    }
    QApplication::setPalette(light);
}

void TestController::recordIsSavedAtTheEnd()
{
    {
        const RunningApp running;
        RunningApp::Find<QDoubleSpinBox>("doubleSpinBoxThreshold")->setValue(3.25);
        Apply();
        QVERIFY(!RunningApp::Stored(QStringLiteral("Application/Settings")).isValid());
    }
    const auto threshold = [] {
        return RunningApp::Stored(QStringLiteral("Application/Settings"))
            .toMap()
            .value(QStringLiteral("RemindThreshold"));
    };
    QCOMPARE(threshold(), QVariant(3.25));
    {
        int nArguments = 1;
        char name[] = "kelvo";
        char *arguments[] = {name, nullptr};
        const MyApp handOff(nArguments,
                            arguments); // never gets its widgets, stores an empty record all the same
    }
    QVERIFY(RunningApp::Stored(QStringLiteral("Application/Settings")).toMap().isEmpty());
    QVERIFY(RunningApp::Stored(QStringLiteral("Application/Settings")).isValid());
}

QStringList TestController::MenuTexts(const QMenu *menu)
{
    QStringList texts;
    for (const QAction *action : menu->actions()) {
        texts << (action->isSeparator() ? QStringLiteral("-") : action->text());
    }
    return texts;
}

void TestController::menu()
{
    const RunningApp running(RunningApp::Report(256, 512, 1024, 262144));
    QCOMPARE(MenuTexts(RunningApp::Window<QMenu>()),
             QStringList({"Free: 1.0 MB", "Wired: 1.00 GB", "Active: 4.0 MB", "Inactive: 2.0 MB", "-",
                          "Free Memory Now!", "-", "Kelvo Preferences...", "About Kelvo", "-", "Quit"}));
}

void TestController::menuFollowsTheSamples()
{
    RunningApp running;
    const QAction *free = RunningApp::Window<QMenu>()->actions().first();
    const QSignalSpy changed(free, SIGNAL(changed()));
    running.Sample(RunningApp::Report(1000, 20, 30, 7));
    QCOMPARE(changed.count(), 0); // the same figures: nothing is set
    running.Sample(RunningApp::Report(512, 20, 30, 7));
    QCOMPARE(free->text(), QStringLiteral("Free: 2.0 MB"));
    running.Sample({});
    QCOMPARE(free->text(), QStringLiteral("Free: 2.0 MB"));
    QCOMPARE(changed.count(), 1);
}

void TestController::swatch()
{
    const RunningApp running;
    const QImage image = MyApp::CreateColorIcon(Qt::blue).pixmap(16).toImage();
    QCOMPARE(image.size(), QSize(16, 16));
    QCOMPARE(image.pixelColor(2, 8).alpha(), 0);
    QCOMPARE(image.pixelColor(3, 8), QColor(Qt::gray));
    QCOMPARE(image.pixelColor(8, 8), QColor(Qt::blue));
}

void TestController::showingTheMainWindow()
{
    RunningApp::Store(QStringLiteral("Application/Settings"),
                      QVariantMap{{QStringLiteral("HideAtStartUp"), true}});
    RunningApp running;
    auto *window = RunningApp::Window<MainDialog>();
    QVERIFY(!window->isVisible());
    emit running.app.messageReceived(QStringLiteral("-q"));
    QVERIFY(window->isVisible());
    window->close();
    QVERIFY(!window->isVisible());
    RunningApp::Window<QMenu>()->actions().at(3)->trigger();
    QVERIFY(window->isVisible());
    window->showMinimized();
    emit running.app.messageReceived(QString());
    QVERIFY(!window->isMinimized());
}

void TestController::systemQuitRequest()
{
    RunningApp running;
    QCoreApplication::postEvent(&running.app, new QEvent(QEvent::Close));
    QTimer::singleShot(5000, &running.app, [] { QCoreApplication::exit(99); });
    QCOMPARE(QApplication::exec(), 0);
}

void TestController::reminder()
{
    RunningApp::Store(QStringLiteral("Application/Settings"),
                      QVariantMap{{QStringLiteral("HideAtStartUp"), true},
                                  {QStringLiteral("Remind"), true},
                                  {QStringLiteral("RemindThreshold"), 1.0}});
    RunningApp running;
    const auto *reminder = RunningApp::Window<DialogReminder>();
    const auto *message = RunningApp::Find<QLabel>("labelMessage");
    running.Sample(RunningApp::Report(1, 262144, 1, 1));
    QVERIFY(!reminder->isVisible());
    RunningApp::Window<DialogPreferences>()->show();
    running.Sample(RunningApp::Report(1, 262145, 1, 1));
    QVERIFY(!reminder->isVisible()); // whoever has a window open is looking
    RunningApp::Window<DialogPreferences>()->hide();
    RunningApp::Window<MainDialog>()->show();
    running.Sample(RunningApp::Report(1, 262145, 1, 1));
    QVERIFY(!reminder->isVisible());
    RunningApp::Window<MainDialog>()->hide();
    running.Sample(RunningApp::Report(1, 262145, 1, 1));
    QVERIFY(reminder->isVisible());
    QCOMPARE(message->text(),
             QStringLiteral("Your inactive memory has reached 1.00 GB. Do you want to free memory now?"));
    running.Sample(RunningApp::Report(1, 524288, 1, 1));
    QVERIFY(message->text().contains(QStringLiteral("2.00 GB")));
}

void TestController::reminderAnswers()
{
    RunningApp::Store(QStringLiteral("Application/Settings"),
                      QVariantMap{{QStringLiteral("HideAtStartUp"), true}, {QStringLiteral("Remind"), true}});
    {
        RunningApp running(RunningApp::Report(1, 262145, 1, 1));
        const auto *reminder = RunningApp::Window<DialogReminder>();
        QVERIFY(reminder->isVisible());
        Click("pushButtonNo");
        running.app.OnRemindRejected(); // "No" again: the first of the timers to fire still ends the silence
        running.Sample(RunningApp::Report(1, 300000, 1, 1));
        QVERIFY(!reminder->isVisible());
        running.app.ResetReminder();
        running.Sample(RunningApp::Report(1, 300000, 1, 1));
        QVERIFY(reminder->isVisible());
        Click("pushButtonNoRemind");
        QVERIFY(!RunningApp::Find<QAbstractButton>("checkBoxRemind")->isChecked());
        running.Sample(RunningApp::Report(1, 300000, 1, 1));
        QVERIFY(!reminder->isVisible());
    }
    QCOMPARE(
        RunningApp::Stored(QStringLiteral("Application/Settings")).toMap().value(QStringLiteral("Remind")),
        QVariant(false));
}

QTEST_APPLESS_MAIN(TestController)
#include "TestController.moc"
