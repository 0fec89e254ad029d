// The preferences panel over any record, and how the dialogs answer.

#include "dialogs/DialogAbout.h"
#include "dialogs/DialogPreferences.h"
#include "dialogs/DialogReminder.h"
#include "tests/support/FailOnWarnings.h"

#include <QCheckBox>
#include <QSignalSpy>
#include <QtTest>

class TestDialogs : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarnings(); }

    void anyRecord_data()
    {
        QTest::addColumn<QVariant>("given");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("read");
        const auto row = [](const QVariant &given, const char *key, const QVariant &read) {
            QTest::addRow("%s %s", key, given.typeName()) << given << QString(key) << read;
        };
        row({}, "StayOnTop", false);
        row(true, "PieChartIcon", true); // shows a box
        row(true, "Remind", true);       // enables a number
        row("true", "AutoLaunch", true);
        row(QVariantList{1}, "NoTitleBar", false);
        row("dark", "WindowStyle", 0);
        row(2, "WindowStyle", 1);
        row(-1, "UpdateFrequency", 1);
        row(1.234, "RemindThreshold", 1.23);
        row(150, "RemindThreshold", 99.99);
        row("-3", "RemindThreshold", 0.0);
    }
    void anyRecord()
    {
        QFETCH(QVariant, given);
        QFETCH(QString, key);
        QFETCH(QVariant, read);
        QVariantMap full{{"WindowStyle", 1}, {"UpdateFrequency", 1}, {"RemindThreshold", 42.0}};
        QVariantMap empty{{"WindowStyle", 0}, {"UpdateFrequency", 0}, {"RemindThreshold", 0.0}};
        for (const char *box : {"AutoHide", "AutoLaunch", "StayOnTop", "PieChartIcon", "MonoColor", "Remind",
                                "NoTitleBar", "HideAtStartUp"}) {
            full[box] = true;
            empty[box] = false;
        }
        DialogPreferences panel(nullptr);
        const QSignalSpy changed(&panel, SIGNAL(SettingChanged()));
        panel.SetSettings(full); // so that nearly each control really has to move
        QCOMPARE(panel.GetSettings(), full);
        panel.SetSettings({{key, given}});
        QCOMPARE(changed.count(), 0);
        empty[key] = read;
        const QVariantMap settings = panel.GetSettings();
        QCOMPARE(settings, empty);
        for (auto it = empty.cbegin(); it != empty.cend(); ++it) {
            QCOMPARE(settings[it.key()].typeName(), it->typeName());
        }
        // What the form's own connections do otherwise.
        auto *mono = panel.findChild<QCheckBox *>("checkBoxMonoColor");
        QCOMPARE(mono->isVisibleTo(&panel), settings["PieChartIcon"].toBool());
        QCOMPARE(panel.findChild<QWidget *>("doubleSpinBoxThreshold")->isEnabled(),
                 settings["Remind"].toBool());
        mono->setChecked(true);
        QVERIFY(panel.GetSettings()["MonoColor"].toBool()); // kept while hidden
    }

    /// Only where a window that stays on top would cover it, and where the user has not moved it clear.
    void panelStandsBeside()
    {
        QWidget other;
        other.setGeometry(20, 30, 200, 80);
        DialogPreferences panel(nullptr);
        panel.move(other.pos());
        const auto moves = [&] {
            const QPoint before = panel.pos();
            panel.PlaceBeside(&other);
            return panel.pos() != before;
        };
        other.show();
        QVERIFY(!moves()); // it can be covered itself
        other.setWindowFlag(Qt::WindowStaysOnTopHint);
        QVERIFY(!moves()); // hidden
        other.show();
        QVERIFY(moves());
        panel.show();
        QVERIFY(!panel.frameGeometry().intersects(other.frameGeometry()));
        panel.hide();
        panel.move(panel.screen()->availableGeometry().center());
        QVERIFY(!moves());
    }

    /// One reminder serves the whole run, hides before it answers, and grows with its message.
    void reminder()
    {
        DialogReminder dialog(nullptr);
        QStringList heard;
        const auto hear = [&](const char *what) { heard << (dialog.isVisible() ? "too early" : what); };
        connect(&dialog, &DialogReminder::Accepted, this, [&] { hear("yes"); });
        connect(&dialog, &DialogReminder::DoNotRemind, this, [&] { hear("never"); });
        connect(&dialog, &DialogReminder::rejected, this, [&] { hear("no"); });
        for (int i = 0; i < 2; ++i) {
            for (const char *button : {"pushButtonYes", "pushButtonNoRemind"}) {
                dialog.show();
                dialog.findChild<QAbstractButton *>(button)->click();
            }
            dialog.show();
            QTest::keyClick(&dialog, Qt::Key_Escape);
        }
        QCOMPARE(heard.join(' '), "yes never no yes never no");
        dialog.SetMessage("short");
        dialog.show();
        const int height = dialog.height();
        dialog.SetMessage(QString("a long message ").repeated(30));
        QTRY_VERIFY(dialog.height() > 2 * height);
    }

    void aboutOpensNothingAtReturn()
    {
        DialogAbout dialog(nullptr);
        dialog.Show();
        QTest::keyClick(&dialog, Qt::Key_Return);
        QVERIFY(dialog.isVisible()); // feedback hides it
    }
};

QTEST_MAIN(TestDialogs)
#include "TestDialogs.moc"
