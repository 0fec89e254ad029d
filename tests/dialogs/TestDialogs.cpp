// The preferences panel with any record.

#include "dialogs/DialogPreferences.h"
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
};

QTEST_MAIN(TestDialogs)
#include "TestDialogs.moc"
