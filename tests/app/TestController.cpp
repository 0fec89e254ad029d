// The controller with all its windows, over a fake interpreter: what the end-to-end tests cannot reach.

#include "tests/support/RunningApp.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>

class TestController : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void settingsLeaveTheWindowAlone();
    void readableOnADarkDesktop();
    void swatch();
    void minimisedWindowComesBack();
    void systemQuitRequest();
    void noReminderOverAnOpenWindow();

private:
    static void Click(const char *name) { RunningApp::Find<QAbstractButton>(name)->click(); }
    static void Apply() { QCoreApplication::sendPostedEvents(); }
};

void TestController::init()
{
    FailOnWarnings();
    RunningApp::ForgetSettings();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

/// Hidden and shown again, it would flicker.
void TestController::settingsLeaveTheWindowAlone()
{
    const RunningApp running;
    const QSignalSpy hidden(RunningApp::Window<MainDialog>()->windowHandle(), SIGNAL(visibleChanged(bool)));
    Click("checkBoxRemind");
    Apply();
    QCOMPARE(hidden.count(), 0);
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

void TestController::swatch()
{
    const RunningApp running;
    const QImage image = MyApp::CreateColorIcon(Qt::blue).pixmap(16).toImage();
    QCOMPARE(image.pixelColor(8, 8), QColor(Qt::blue));
}

void TestController::minimisedWindowComesBack()
{
    RunningApp running;
    auto *window = RunningApp::Window<MainDialog>();
    window->showMinimized();
    emit running.app.messageReceived(QString());
    QVERIFY(window->isVisible() && !window->isMinimized());
}

void TestController::systemQuitRequest()
{
    RunningApp running;
    QCoreApplication::postEvent(&running.app, new QEvent(QEvent::Close));
    QTimer::singleShot(5000, &running.app, [] { QCoreApplication::exit(99); });
    QCOMPARE(QApplication::exec(), 0);
}

/// Whoever has a window open is looking.
void TestController::noReminderOverAnOpenWindow()
{
    RunningApp::Store(QStringLiteral("Application/Settings"), QVariantMap{{QStringLiteral("Remind"), true}});
    RunningApp running;
    QWidget *const main = RunningApp::Window<MainDialog>();
    QWidget *const panel = RunningApp::Window<DialogPreferences>();
    for (QWidget *open : {main, panel, static_cast<QWidget *>(nullptr)}) {
        main->setVisible(open == main);
        panel->setVisible(open == panel);
        running.Sample(RunningApp::Report(1, 300000, 1, 1));
        QCOMPARE(RunningApp::Window<DialogReminder>()->isVisible(), open == nullptr);
    }
}

QTEST_APPLESS_MAIN(TestController)
#include "TestController.moc"
