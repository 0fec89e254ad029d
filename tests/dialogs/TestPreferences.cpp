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
    void Announcement_data();
    void Announcement();
    void MonoColorIsKeptWhileHidden();
    void ThresholdFollowsRemind();
    void TabGoesFromTopToBottom();
    void StandsClear_data();
    void StandsClear();
};

void TestPreferences::Record_data()
{
    QTest::addColumn<QVariantMap>("given");
    QTest::addColumn<QVariantMap>("read");
    QTest::newRow("empty") << QVariantMap() << EmptyRecord();
    QTest::newRow("unknown key") << QVariantMap{{"Colour", "pink"}} << EmptyRecord();
    for (const char *key : {"AutoHide", "AutoLaunch", "StayOnTop", "PieChartIcon", "MonoColor", "Remind",
                            "NoTitleBar", "HideAtStartUp"}) {
        QTest::newRow(key) << QVariantMap{{key, true}} << EmptyRecordWith(key, true);
    }
    QTest::newRow("text for a bool") << QVariantMap{{"StayOnTop", "true"}}
                                     << EmptyRecordWith("StayOnTop", true);
    QTest::newRow("list for a bool") << QVariantMap{{"StayOnTop", QVariantList{1}}} << EmptyRecord();

    QTest::newRow("dark") << QVariantMap{{"WindowStyle", 1}} << EmptyRecordWith("WindowStyle", 1);
    QTest::newRow("style 2") << QVariantMap{{"WindowStyle", 2}} << EmptyRecordWith("WindowStyle", 1);
    QTest::newRow("style of no type") << QVariantMap{{"WindowStyle", "dark"}} << EmptyRecord();
    QTest::newRow("slow") << QVariantMap{{"UpdateFrequency", 1}} << EmptyRecordWith("UpdateFrequency", 1);
    QTest::newRow("frequency 7") << QVariantMap{{"UpdateFrequency", 7}}
                                 << EmptyRecordWith("UpdateFrequency", 1);
    QTest::newRow("frequency -1") << QVariantMap{{"UpdateFrequency", -1}}
                                  << EmptyRecordWith("UpdateFrequency", 1);

    QTest::newRow("threshold") << QVariantMap{{"RemindThreshold", 2.5}}
                               << EmptyRecordWith("RemindThreshold", 2.5);
    QTest::newRow("rounded") << QVariantMap{{"RemindThreshold", 1.234}}
                             << EmptyRecordWith("RemindThreshold", 1.23);
    QTest::newRow("above") << QVariantMap{{"RemindThreshold", 150.0}}
                           << EmptyRecordWith("RemindThreshold", 99.99);
    QTest::newRow("huge") << QVariantMap{{"RemindThreshold", 1e300}}
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

void TestPreferences::Announcement_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("nSignals");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *control, int nSignals, const char *key, const QVariant &value) {
        QTest::newRow(control) << control << nSignals << key << value;
    };
    row("checkBoxAutoHide", 1, "AutoHide", true);
    row("checkBoxAutoLaunch", 1, "AutoLaunch", true);
    row("checkBoxStayOnTop", 1, "StayOnTop", true);
    row("checkBoxPieChartIcon", 1, "PieChartIcon", false);
    row("checkBoxMonoColor", 1, "MonoColor", true);
    row("checkBoxRemind", 1, "Remind", false);
    row("checkBoxNoTitleBar", 1, "NoTitleBar", true);
    row("checkBoxHideAtStartUp", 1, "HideAtStartUp", true);
    row("radioButtonStyleDark", 2, "WindowStyle", 1);    // one button goes off, the other comes on
    row("radioButtonStyleClassic", 0, "WindowStyle", 0); // already on
    row("comboBoxFrequency", 1, "UpdateFrequency", 1);
    row("doubleSpinBoxThreshold", 1, "RemindThreshold", 2.0);
}

void TestPreferences::Announcement()
{
    QFETCH(QString, control);
    QFETCH(int, nSignals);
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    DialogPreferences panel(nullptr);
    panel.SetSettings({{"PieChartIcon", true}, {"Remind", true}, {"RemindThreshold", 1.0}});
    const QVariantMap before = panel.GetSettings();
    QSignalSpy changed(&panel, SIGNAL(SettingChanged()));
    panel.show();
    auto *widget = panel.findChild<QWidget *>(control);
    QVERIFY(widget);
    if (qobject_cast<QAbstractButton *>(widget)) {
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_Space);
    } else {
        QTest::keyClick(widget, control == "comboBoxFrequency" ? Qt::Key_Down : Qt::Key_Up);
    }
    QCOMPARE(changed.count(), nSignals);
    QVariantMap expected = before;
    expected[key] = value;
    QCOMPARE(panel.GetSettings(), expected);
}

void TestPreferences::MonoColorIsKeptWhileHidden()
{
    DialogPreferences panel(nullptr);
    panel.SetSettings({{"PieChartIcon", true}, {"MonoColor", true}});
    panel.findChild<QCheckBox *>("checkBoxPieChartIcon")->click();
    QVERIFY(!panel.findChild<QWidget *>("checkBoxMonoColor")->isVisibleTo(&panel));
    QCOMPARE(panel.GetSettings().value("MonoColor"), true);
    panel.findChild<QCheckBox *>("checkBoxPieChartIcon")->click();
    QVERIFY(panel.findChild<QWidget *>("checkBoxMonoColor")->isVisibleTo(&panel));
}

void TestPreferences::ThresholdFollowsRemind()
{
    DialogPreferences panel(nullptr);
    panel.SetSettings({{"Remind", true}, {"RemindThreshold", 1.0}});
    panel.findChild<QCheckBox *>("checkBoxRemind")->click();
    QVERIFY(!panel.findChild<QWidget *>("doubleSpinBoxThreshold")->isEnabled());
    QVERIFY(panel.findChild<QWidget *>("labelRemind")->isEnabled());
    QVERIFY(panel.findChild<QWidget *>("label_2")->isEnabled());
}

void TestPreferences::TabGoesFromTopToBottom()
{
    DialogPreferences panel(nullptr);
    panel.SetSettings({{"PieChartIcon", true}, {"Remind", true}});
    panel.show();
    panel.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    QPoint last(-1, -1);
    QStringList visited;
    for (int i = 0; i < 11; ++i) { // two radio buttons are one stop
        const QWidget *focus = panel.focusWidget();
        QVERIFY(focus);
        visited.append(focus->objectName());
        const QPoint at = focus->mapTo(&panel, QPoint(0, focus->height() / 2));
        QVERIFY2(at.y() > last.y() + 5 || at.x() > last.x(), qPrintable(visited.join(", ")));
        last = at;
        QTest::keyClick(panel.focusWidget(), Qt::Key_Tab);
    }
    visited.removeDuplicates();
    QCOMPARE(visited.size(), 11);
}

void TestPreferences::StandsClear_data()
{
    QTest::addColumn<QPoint>("otherAt");
    QTest::newRow("left") << QPoint(20, 30);
    QTest::newRow("right") << QPoint(550, 30);
    QTest::newRow("low") << QPoint(20, 500);
}

void TestPreferences::StandsClear()
{
    QFETCH(const QPoint, otherAt);
    QWidget other;
    other.resize(200, 80);
    other.move(otherAt);
    DialogPreferences panel(nullptr);
    const QRect screen = panel.screen()->availableGeometry();

    // A window that can be covered is no reason to move.
    other.show();
    panel.move(otherAt);
    panel.StandClearOf(&other);
    QCOMPARE(panel.pos(), otherAt);

    other.setWindowFlag(Qt::WindowStaysOnTopHint);
    panel.StandClearOf(&other);
    QCOMPARE(panel.pos(), otherAt); // nor is a hidden one
    other.show();
    for (int nTime = 0; nTime < 2; ++nTime) {
        panel.StandClearOf(&other);
        panel.show();
        QVERIFY(!panel.frameGeometry().intersects(other.frameGeometry()));
        QVERIFY(screen.contains(panel.frameGeometry()));
        panel.hide();
        panel.move(otherAt + QPoint(10, 10)); // covered again
    }
    panel.move(screen.center());
    panel.StandClearOf(&other); // the place that the user gave it
    QCOMPARE(panel.pos(), screen.center());
}

QTEST_MAIN(TestPreferences)
#include "TestPreferences.moc"
