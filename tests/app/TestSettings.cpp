// The settings record in storage, and the pure rules that read it.

#include "app/ReminderRule.h"
#include "app/SettingsRecord.h"
#include "mainwindow/UsageCounters.h"
#include "tests/support/FailOnWarnings.h"

#include <QFile>
#include <QSettings>

#include <limits>

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FailOnWarnings();
        QCoreApplication::setOrganizationName("Orvanta");
        QFile::remove(QSettings().fileName());
    }
    void defaults();
    void reminderIsDue();
    void usage();
};

void TestSettings::defaults()
{
    const QVariantMap record = LoadSettings();
    QCOMPARE(record.size(), 10); // MonoColor has none
    QCOMPARE(record["StayOnTop"], QVariant(true));
    QCOMPARE(record["PieChartIcon"], QVariant(true));
    QCOMPARE(record["WindowStyle"].typeId(), int(QMetaType::Int));
    QCOMPARE(record["RemindThreshold"].typeId(), int(QMetaType::Double));
    QCOMPARE(record["RemindThreshold"], QVariant(1.0));

    const QVariantMap partial{{"StayOnTop", "false"}, {"New", 1}, {"RemindThreshold", 2.75}};
    SaveSettings(record);
    SaveSettings(partial);
    QCOMPARE(LoadSettings()["StayOnTop"], QVariant("false"));
    QCOMPARE(LoadSettings()["RemindThreshold"], QVariant(2.75));
    QCOMPARE(LoadSettings().size(), 11);
}

void TestSettings::reminderIsDue()
{
    const std::tuple<QVariant, qlonglong, bool> cases[] = {
        {1.0, 1073741824, false},
        {1.0, 1073741825, true},
        {0.5, 536870913, true},
        {"0.5", 536870912, false}, // a stored text
        {{}, 1, true},
        {{}, 0, false},
    };
    for (const auto &[threshold, nInactive, bDue] : cases) {
        const QVariantMap stats{{"Inactive", nInactive}};
        QVERIFY(!IsReminderDue({{"RemindThreshold", threshold}}, stats)); // not asked for
        QCOMPARE(IsReminderDue({{"RemindThreshold", threshold}, {"Remind", true}}, stats), bDue);
    }
}

void TestSettings::usage()
{
    const int nMost = std::numeric_limits<int>::max();
    const struct
    {
        UsageCounter counter;
        const char *key;
        int nEnough;
    } counters[] = {{UsageCounter::Starts, "Application/StartCount", 16},
                    {UsageCounter::FreeingRuns, "Application/ExecCount", 21}};
    for (const auto &[counter, key, nEnough] : counters) {
        const QString name = QString::fromLatin1(key);
        for (const int nBefore : {0, nEnough - 1, nEnough, nMost}) {
            QSettings().setValue(name, nBefore);
            QCOMPARE(CountUsage(counter), nBefore >= nEnough);
            QCOMPARE(QSettings().value(name).toInt(), nBefore == nMost ? nMost : nBefore + 1);
        }
    }
}

QTEST_GUILESS_MAIN(TestSettings)
#include "TestSettings.moc"
