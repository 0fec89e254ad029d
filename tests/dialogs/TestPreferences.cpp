#include "dialogs/DialogPreferences.h"
#include "tests/support/FailOnWarnings.h"

#include <QCheckBox>
#include <QSignalSpy>
#include <QtTest>

class TestPreferences : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarnings(); }
    void Record_data();
    void Record();
    void MonoColorIsKeptWhileHidden();
    void StandsClear();
};

void TestPreferences::Record_data()
{
    QTest::addColumn<QVariantMap>("given");
    QTest::addColumn<QVariantMap>("read");
    const QVariantMap empty{{"AutoHide", false},      {"AutoLaunch", false}, {"StayOnTop", false},
                            {"WindowStyle", 0},       {"MonoColor", false},  {"PieChartIcon", false},
                            {"RemindThreshold", 0.0}, {"Remind", false},     {"NoTitleBar", false},
                            {"HideAtStartUp", false}, {"UpdateFrequency", 0}};
    QTest::newRow("empty") << QVariantMap() << empty;
    const auto row = [&](const char *name, const char *key, const QVariant &given, const QVariant &read) {
        QVariantMap record = empty;
        record[key] = read;
        QTest::newRow(name) << QVariantMap{{key, given}} << record;
    };
    row("with a box that is shown", "PieChartIcon", true, true);
    row("with a number that is enabled", "Remind", true, true);
    row("text for a bool", "StayOnTop", "true", true);
    row("list for a bool", "StayOnTop", QVariantList{1}, false);
    row("style of no type", "WindowStyle", "dark", 0);
    row("style 2", "WindowStyle", 2, 1);
    row("frequency -1", "UpdateFrequency", -1, 1);
    row("rounded", "RemindThreshold", 1.234, 1.23);
    row("above", "RemindThreshold", 150.0, 99.99);
    row("below", "RemindThreshold", -3.0, 0.0);
    row("threshold as text", "RemindThreshold", "0.5", 0.5);
}

void TestPreferences::Record()
{
    QFETCH(QVariantMap, given);
    QFETCH(QVariantMap, read);
    DialogPreferences panel(nullptr);
    QVariantMap opposite{{"WindowStyle", 1}, {"UpdateFrequency", 1}, {"RemindThreshold", 42.0}};
    for (const char *key : {"AutoHide", "AutoLaunch", "StayOnTop", "PieChartIcon", "MonoColor", "Remind",
                            "NoTitleBar", "HideAtStartUp"}) {
        opposite[key] = true;
    }
    panel.SetSettings(opposite); // so that nearly each control really has to move
    const QSignalSpy changed(&panel, SIGNAL(SettingChanged()));

    panel.SetSettings(given);
    QCOMPARE(changed.count(), 0);
    const QVariantMap settings = panel.GetSettings();
    QCOMPARE(settings, read);
    for (auto it = read.cbegin(); it != read.cend(); ++it) {
        QCOMPARE(settings[it.key()].typeName(), it->typeName());
    }
    // What the form's own connections do otherwise.
    QCOMPARE(panel.findChild<QWidget *>("checkBoxMonoColor")->isVisibleTo(&panel),
             read["PieChartIcon"].toBool());
    QCOMPARE(panel.findChild<QWidget *>("doubleSpinBoxThreshold")->isEnabled(), read["Remind"].toBool());
}

void TestPreferences::MonoColorIsKeptWhileHidden()
{
    DialogPreferences panel(nullptr);
    panel.SetSettings({{"PieChartIcon", true}, {"MonoColor", true}});
    panel.findChild<QCheckBox *>("checkBoxPieChartIcon")->click();
    QCOMPARE(panel.GetSettings().value("MonoColor"), true);
}

/// Only where a window that stays on top would cover it, and where the user has not moved it clear.
void TestPreferences::StandsClear()
{
    QWidget other;
    other.setGeometry(20, 30, 200, 80);
    DialogPreferences panel(nullptr);
    panel.move(other.pos());
    const auto moves = [&] {
        const QPoint before = panel.pos();
        panel.StandClearOf(&other);
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

QTEST_MAIN(TestPreferences)
#include "TestPreferences.moc"
