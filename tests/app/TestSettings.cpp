// The settings record in storage, and the reminder's rule.

#include "app/SettingsRecord.h"
#include "tests/support/FailOnWarnings.h"

#include <QDebug>
#include <QFile>
#include <QSettings>

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarnings(); }

    void onlyAnotherRecordIsWritten()
    {
        QCoreApplication::setOrganizationName("Orvanta");
        QSettings().clear();
        const QVariantMap record = LoadSettings();
        QCOMPARE(record.size(), 10); // MonoColor has no default
        QVariantList stored{{}, "text", QVariantList{1}, QVariant(record).toHash()};
        // Most of these equal ours: QVariant converts.
        for (const auto &[key, value] : std::initializer_list<std::pair<QString, QVariant>>{
                 {"PieChartIcon", "true"}, {"RemindThreshold", 1}, {"Remind", true}, {"New", 1}}) {
            QVariantMap other = record;
            other[key] = value;
            stored << other;
        }
        for (const QVariant &value : stored) {
            QSettings().setValue("Application/Settings", value);
            SaveSettings(record);
            const QVariant written = QSettings().value("Application/Settings");
            QCOMPARE(QDebug::toString(written), QDebug::toString(QVariant(record))); // with all types
        }
        QFile file(QSettings().fileName());
        QVERIFY(file.open(QIODevice::Append) && file.write("; gone if the file is written\n") > 0);
        file.close();
        SaveSettings(LoadSettings());
        QVERIFY(file.open(QIODevice::ReadOnly) && file.readAll().contains("; gone"));
    }

    void reminderIsDue()
    {
        const auto isDue = [](const QVariant &threshold, qlonglong inactive) {
            return IsReminderDue({{"Remind", true}, {"RemindThreshold", threshold}},
                                 {{"Inactive", inactive}});
        };
        QVERIFY(!isDue("0.5", 1 << 29) && isDue("0.5", (1 << 29) + 1)); // a stored text
        QVERIFY(!isDue({}, 0) && isDue({}, 1));
    }
};

QTEST_GUILESS_MAIN(TestSettings)
#include "TestSettings.moc"
