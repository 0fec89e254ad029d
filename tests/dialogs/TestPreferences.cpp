#include "dialogs/DialogPreferences.h"
#include "tests/support/FailOnWarnings.h"

#include <QCheckBox>
#include <QSignalSpy>
#include <QtTest>

namespace {

QVariantMap EmptyRecord()
{
    return {{"AutoHide", false},   {"AutoLaunch", false},    {"StayOnTop", false},     {"WindowStyle", 0},
            {"MonoColor", false},  {"PieChartIcon", false},  {"RemindThreshold", 0.0}, {"Remind", false},
            {"NoTitleBar", false}, {"HideAtStartUp", false}, {"UpdateFrequency", 0}};
}

QVariantMap EmptyRecordWith(const QString &key, const QVariant &value)
{
    QVariantMap record = EmptyRecord();
    record[key] = value;
    return record;
}

} // namespace

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
    QTest::newRow("empty") << QVariantMap() << EmptyRecord();
    for (const char *key : {"PieChartIcon", "Remind"}) { // other controls follow these
        QTest::newRow(key) << QVariantMap{{key, true}} << EmptyRecordWith(key, true);
    }
    QTest::newRow("text for a bool") << QVariantMap{{"StayOnTop", "true"}}
                                     << EmptyRecordWith("StayOnTop", true);
    QTest::newRow("list for a bool") << QVariantMap{{"StayOnTop", QVariantList{1}}} << EmptyRecord();

    QTest::newRow("style of no type") << QVariantMap{{"WindowStyle", "dark"}} << EmptyRecord();
    QTest::newRow("frequency -1") << QVariantMap{{"UpdateFrequency", -1}}
                                  << EmptyRecordWith("UpdateFrequency", 1);

    QTest::newRow("rounded") << QVariantMap{{"RemindThreshold", 1.234}}
                             << EmptyRecordWith("RemindThreshold", 1.23);
    QTest::newRow("above") << QVariantMap{{"RemindThreshold", 150.0}}
                           << EmptyRecordWith("RemindThreshold", 99.99);
    QTest::newRow("below") << QVariantMap{{"RemindThreshold", -3.0}}
                           << EmptyRecordWith("RemindThreshold", 0.0);
    QTest::newRow("threshold as text")
        << QVariantMap{{"RemindThreshold", "0.5"}} << EmptyRecordWith("RemindThreshold", 0.5);
}

void TestPreferences::Record()
{
    QFETCH(QVariantMap, given);
    QFETCH(QVariantMap, read);
    DialogPreferences panel(nullptr);
    // From the opposite of nearly everything, so that each control really has to move.
    panel.SetSettings({{"AutoHide", true},
                       {"AutoLaunch", true},
                       {"StayOnTop", true},
                       {"PieChartIcon", true},
                       {"MonoColor", true},
                       {"Remind", true},
                       {"NoTitleBar", true},
                       {"HideAtStartUp", true},
                       {"WindowStyle", 1},
                       {"UpdateFrequency", 1},
                       {"RemindThreshold", 42.0}});
    QSignalSpy changed(&panel, SIGNAL(SettingChanged()));

    panel.SetSettings(given);
    QCOMPARE(changed.count(), 0);
    const QVariantMap settings = panel.GetSettings();
    QCOMPARE(settings.keys(), read.keys());
    for (auto it = read.cbegin(); it != read.cend(); ++it) {
        QCOMPARE(settings.value(it.key()).typeName(), it->typeName());
        QCOMPARE(settings.value(it.key()), it.value());
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
