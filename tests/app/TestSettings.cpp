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
    void init()
    {
        FailOnWarnings();
        QCoreApplication::setOrganizationName("Orvanta");
        QSettings().clear();
    }
    void defaults();
    void onlyAnotherRecordIsWritten();
    void reminderIsDue();
};

void TestSettings::defaults()
{
    QCOMPARE(LoadSettings().size(), 10); // MonoColor has none
    SaveSettings({{"StayOnTop", "false"}, {"New", 1}});
    QCOMPARE(LoadSettings().size(), 11);
    QCOMPARE(LoadSettings()["StayOnTop"], QVariant("false"));
}

/// Another one may equal ours: QVariant converts.
void TestSettings::onlyAnotherRecordIsWritten()
{
    const QVariantMap record = LoadSettings();
    const std::pair<QString, QVariant> others[] = {
        {"StayOnTop", "true"}, {"RemindThreshold", 1}, {"WindowStyle", 0.0}, {"Remind", true}, {"New", 1}};
    QVariantList stored{{}, "text", QVariantList{1}, QVariant::fromValue(QVariantHash())};
    for (const auto &[key, value] : others) {
        QVariantMap other = record;
        other[key] = value;
        stored << other;
    }
    for (const QVariant &value : stored) {
        QSettings().setValue("Application/Settings", value);
        SaveSettings(record);
        QCOMPARE(QDebug::toString(QSettings().value("Application/Settings")),
                 QDebug::toString(QVariant(record))); // with all types
    }
    QFile file(QSettings().fileName());
    QVERIFY(file.open(QIODevice::Append));
    file.write("; gone if the file is written\n");
    file.close();
    SaveSettings(record);
    QVERIFY(file.open(QIODevice::ReadOnly) && file.readAll().contains("; gone"));
}

void TestSettings::reminderIsDue()
{
    const auto isDue = [](const QVariant &threshold, qlonglong inactive) {
        return IsReminderDue({{"Remind", true}, {"RemindThreshold", threshold}}, {{"Inactive", inactive}});
    };
    QVERIFY(!isDue("0.5", 1 << 29) && isDue("0.5", (1 << 29) + 1)); // a stored text
    QVERIFY(!isDue({}, 0) && isDue({}, 1));
}

QTEST_GUILESS_MAIN(TestSettings)
#include "TestSettings.moc"
