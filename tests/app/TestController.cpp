// The controller with all its windows: what the end-to-end tests cannot reach.

#include "dialogs/DialogAbout.h"
#include "dialogs/DialogStartUpInfo.h"
#include "dialogs/DialogWarning.h"
#include "tests/support/RunningApp.h"

#include <QAbstractButton>
#include <QLabel>
#include <QSignalSpy>
#include <QSystemTrayIcon>

class TestController : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FailOnWarnings();
        RunningApp::Store().clear();
    }

    void beforeAndAfterItsWidgets()
    {
        {
            MyApp app(RunningApp::count, RunningApp::arguments);
            const FakeReport report(1, 1, 1, 1);
            const MainDialog window(nullptr); // samples, and tells the controller
            emit app.messageReceived(QString());
            QVERIFY(!window.isVisible() && !app.findChild<QSystemTrayIcon *>());
        }
        RunningApp running;
        const auto *icon = running.app.findChild<QSystemTrayIcon *>();
        QVERIFY(icon && icon->isVisible() && !icon->icon().isNull());
        QCOMPARE(icon->toolTip(), "Kelvo");
        QCOMPARE(icon->contextMenu(), RunningApp::Find<QMenu>());
        auto *window = RunningApp::Find<MainDialog>();
        const QSignalSpy hidden(window->windowHandle(), SIGNAL(visibleChanged(bool)));
        Click("checkBoxRemind");
        QCOMPARE(hidden.count(), 0); // hidden and shown again, it would flicker
        window->showMinimized();
        emit running.app.messageReceived(QString());
        QVERIFY(window->isVisible() && !window->isMinimized());
    }

    void readableTexts()
    {
        RunningApp running;
        auto *window = RunningApp::Find<MainDialog>();
        for (const QColor &desktop : {QColor(0x2a, 0x2e, 0x32), QColor(0xee, 0xee, 0xec)}) {
            QApplication::setPalette(QPalette(desktop));
            const DialogAbout about(nullptr);
            QCOMPARE(about.findChild<QLabel *>("label_4")->text().contains("color:#ffffff"),
                     desktop.lightness() < 128);
            for (const int style : {0, 1, 0}) {
                running.app.SetStyle(style);
                Click("checkBoxNoTitleBar");   // new flags polish the window anew
                DialogWarning warning(window); // the sheet's rule for the main window reaches its dialogs
                DialogStartUpInfo notice(window);
                for (QWidget *shown : std::initializer_list<QWidget *>{window, &warning, &notice}) {
                    shown->show();
                    const int ground = qGray(shown->grab({2, 2, 1, 1}).toImage().pixel(0, 0));
                    for (const QLabel *text : shown->findChildren<QLabel *>()) {
                        const QRgb ink = text->palette().color(QPalette::WindowText).rgb();
                        QVERIFY2(text->window() != shown || qAbs(qGray(ink) - ground) >= 60,
                                 qPrintable(text->objectName()));
                    }
                }
                // The style's own colour stays.
                QCOMPARE(RunningApp::Find<QLabel>("labelInactive")->palette().color(QPalette::WindowText),
                         style ? QColor(0x66, 0x66, 0xff) : QColor(Qt::blue));
            }
        }
    }

private:
    static void Click(const char *name)
    {
        RunningApp::Find<QAbstractButton>(name)->click();
        QCoreApplication::sendPostedEvents();
    }
};

QTEST_APPLESS_MAIN(TestController)
#include "TestController.moc"
