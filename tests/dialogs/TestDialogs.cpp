// The preferences panel with any record; how the reminder answers.

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

    void anyRecord()
    {
        QVariantMap full{{"WindowStyle", 1}, {"UpdateFrequency", 1}, {"RemindThreshold", 42.0}};
        QVariantMap empty{{"WindowStyle", 0}, {"UpdateFrequency", 0}, {"RemindThreshold", 0.0}};
        for (const char *box : {"AutoHide", "AutoLaunch", "StayOnTop", "PieChartIcon", "MonoColor", "Remind",
                                "NoTitleBar", "HideAtStartUp"}) {
            full[box] = true;
            empty[box] = false;
        }
        const std::tuple<const char *, QVariant, QVariant> cases[] = {
            {"PieChartIcon", true, true},      {"Remind", true, true},
            {"AutoLaunch", "true", true},      {"WindowStyle", 2, 1},
            {"UpdateFrequency", -1, 1},        {"RemindThreshold", 150, 99.99},
            {"RemindThreshold", "1.234", 1.23}};
        DialogPreferences panel(nullptr);
        auto *mono = panel.findChild<QCheckBox *>("checkBoxMonoColor");
        const QSignalSpy changed(&panel, SIGNAL(SettingChanged()));
        for (const auto &[key, given, read] : cases) {
            panel.SetSettings(full); // so that nearly each control really has to move
            QCOMPARE(panel.GetSettings(), full);
            panel.SetSettings({{key, given}});
            QVariantMap expected = empty;
            expected[key] = read;
            QCOMPARE(QDebug::toString(panel.GetSettings()), QDebug::toString(expected)); // with its types
            // What the form's own connections do otherwise.
            QCOMPARE(mono->isVisibleTo(&panel), expected["PieChartIcon"].toBool());
            QCOMPARE(panel.findChild<QWidget *>("doubleSpinBoxThreshold")->isEnabled(),
                     expected["Remind"].toBool());
        }
        QCOMPARE(changed.count(), 0);
        mono->setChecked(true);
        QVERIFY(mono->isHidden() && panel.GetSettings()["MonoColor"].toBool());
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
        const int height = dialog.sizeHint().height();
        dialog.show();
        dialog.SetMessage(QString("a long message ").repeated(30));
        QTRY_VERIFY(dialog.height() > height);
    }
};

QTEST_MAIN(TestDialogs)
#include "TestDialogs.moc"
