// The controller with all its windows, over a fake interpreter: what the end-to-end tests cannot reach.

#include "dialogs/DialogStartUpInfo.h"
#include "dialogs/DialogWarning.h"
#include "tests/support/RunningApp.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>

#include <algorithm>

namespace {

/// On the screen: how much brighter or darker than a widget's ground is what differs most from it.
int PaintedContrast(QWidget *widget)
{
    const QRect area(widget->mapTo(widget->window(), QPoint(0, 0)), widget->size());
    const QImage image = widget->window()->grab(area).toImage();
    QList<int> grays;
    for (int nPixel = 0; nPixel < image.width() * image.height(); ++nPixel) {
        grays << qGray(image.pixel(nPixel % image.width(), nPixel / image.width()));
    }
    std::sort(grays.begin(), grays.end());
    const int ground = grays[grays.size() / 2];
    return qMax(ground - grays.first(), grays.last() - ground);
}

} // namespace

class TestController : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void settingsLeaveTheWindowAlone();
    void readableTexts();
    void askedFromOutside();
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

void TestController::readableTexts()
{
    const QPalette usual = QApplication::palette();
    {
        RunningApp running;
        const QImage swatch = MyApp::CreateColorIcon(Qt::blue).pixmap(16).toImage(); // in the menu
        QCOMPARE(swatch.pixelColor(8, 8), QColor(Qt::blue));
        auto *window = RunningApp::Window<MainDialog>();
        for (const QColor &desktop : {QColor(0xee, 0xee, 0xec), QColor(0x2a, 0x2e, 0x32)}) {
            QApplication::setPalette(QPalette(desktop));
            for (const int style : {0, 1, 0}) {
                running.app.SetStyle(style);
                Click("checkBoxNoTitleBar"); // new flags polish the window anew
                Apply();
                DialogWarning warning(window); // the sheet's rule for the main window reaches its dialogs
                DialogStartUpInfo startUpInfo(window);
                for (QWidget *shown : std::initializer_list<QWidget *>{window, &warning, &startUpInfo}) {
                    shown->show();
                    QVERIFY(QTest::qWaitForWindowExposed(shown));
                    for (QWidget *text : shown->findChildren<QWidget *>()) {
                        if (text->window() == shown && text->isVisible() &&
                            (qobject_cast<QLabel *>(text) || qobject_cast<QAbstractButton *>(text))) {
                            QVERIFY2(PaintedContrast(text) >= 80, qPrintable(text->objectName()));
                        }
                    }
                }
                // The style's own colours, and where they can be read the desktop's too.
                const QPalette palette = RunningApp::Find<QLabel>("labelInactive")->palette();
                QCOMPARE(palette.color(QPalette::WindowText),
                         style ? QColor(0x66, 0x66, 0xff) : QColor(Qt::blue));
                if ((desktop.lightness() < 128) == (style == 1)) {
                    QCOMPARE(RunningApp::Find<QWidget>("pushButtonGo")->palette().color(QPalette::Button),
                             desktop);
                }
            }
        }
    }
    QApplication::setPalette(usual);
}

/// By another launch, and by the session.
void TestController::askedFromOutside()
{
    RunningApp running;
    auto *window = RunningApp::Window<MainDialog>();
    window->showMinimized();
    emit running.app.messageReceived(QString());
    QVERIFY(window->isVisible() && !window->isMinimized());
    QCoreApplication::postEvent(&running.app, new QEvent(QEvent::Close));
    QTimer::singleShot(5000, &running.app, [] { QCoreApplication::exit(99); });
    QCOMPARE(QApplication::exec(), 0);
}

/// Whoever has a window open is looking.
void TestController::noReminderOverAnOpenWindow()
{
    RunningApp::Store("Application/Settings", QVariantMap{{"Remind", true}});
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
