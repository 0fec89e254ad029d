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
    void initTestCase();
    void init();
    void defaults();
    void recordRoundTrips();
    void reminderIsDue_data();
    void reminderIsDue();
    void usage();
};

void TestSettings::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Orvanta"));
    QCoreApplication::setApplicationName(QStringLiteral("Kelvo"));
}

void TestSettings::init()
{
    FailOnWarnings();
    QFile::remove(QSettings().fileName());
}

void TestSettings::defaults()
{
    const QVariantMap record = LoadSettings();
    QCOMPARE(record.size(), 10); // MonoColor has none
    QCOMPARE(record[QStringLiteral("StayOnTop")], QVariant(true));
    QCOMPARE(record[QStringLiteral("PieChartIcon")], QVariant(true));
    QCOMPARE(record[QStringLiteral("WindowStyle")].typeId(), int(QMetaType::Int));
    QCOMPARE(record[QStringLiteral("RemindThreshold")], QVariant(1.0));
    QCOMPARE(record[QStringLiteral("RemindThreshold")].typeId(), int(QMetaType::Double));

    QVariantMap partial{{QStringLiteral("StayOnTop"), QStringLiteral("false")}, {QStringLiteral("New"), 1}};
    AddDefaultSettings(partial);
    QCOMPARE(partial[QStringLiteral("StayOnTop")], QVariant(QStringLiteral("false")));
    QCOMPARE(partial.size(), 11);
}

void TestSettings::recordRoundTrips()
{
    QVariantMap record = LoadSettings();
    record[QStringLiteral("RemindThreshold")] = 2.75;
    record[QStringLiteral("WindowStyle")] = 2;
    record[QStringLiteral("MonoColor")] = true;
    SaveSettings(record);
    QCOMPARE(LoadSettings(), record); // values and types
}

void TestSettings::reminderIsDue_data()
{
    QTest::addColumn<QVariant>("threshold");
    QTest::addColumn<qlonglong>("nInactive");
    QTest::addColumn<bool>("bDue");
    QTest::newRow("at the threshold") << QVariant(1.0) << 1073741824LL << false;
    QTest::newRow("a byte above") << QVariant(1.0) << 1073741825LL << true;
    QTest::newRow("half a gigabyte") << QVariant(0.5) << 536870913LL << true;
    QTest::newRow("as stored text") << QVariant(QStringLiteral("0.5")) << 536870912LL << false;
    QTest::newRow("no threshold") << QVariant() << 1LL << true;
    QTest::newRow("nothing inactive") << QVariant() << 0LL << false;
}

void TestSettings::reminderIsDue()
{
    QFETCH(QVariant, threshold);
    QFETCH(qlonglong, nInactive);
    const QVariantMap stats{{QStringLiteral("Inactive"), nInactive}};
    QVariantMap record{{QStringLiteral("RemindThreshold"), threshold}};
    QVERIFY(!IsReminderDue(record, stats)); // not asked for
    record[QStringLiteral("Remind")] = true;
    QTEST(IsReminderDue(record, stats), "bDue");
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
