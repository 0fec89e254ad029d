// The settings record in storage, and the reminder's rule.

#include "app/SettingsRecord.h"
#include "tests/support/FailOnWarnings.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <sys/stat.h>

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

    // A fault here shows as a test that does not end.
    void whatWouldBlockIsAvoided()
    {
        QCoreApplication::setOrganizationName("Orvanta");
        const QTemporaryDir directory;
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(directory.path()));
        const QString organization = directory.filePath("Orvanta.conf");
        const QString path = directory.filePath("Orvanta/" + QCoreApplication::applicationName() + ".conf");
        QVERIFY(QDir(directory.path()).mkdir("Orvanta"));
        const auto avoided = [&] {
            QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, directory.path());
            AvoidBlockingSettings();
            return QSettings().fileName() != path;
        };
        for (const QString &name : {path, path + ".lock", organization}) {
            QVERIFY(!avoided());
            QVERIFY(mkfifo(QFile::encodeName(name).constData(), 0600) == 0);
            QVERIFY(avoided());
            QVERIFY(QFile::remove(name));
        }
        QVERIFY(QFile::link("nowhere", path + ".lock"));
        QVERIFY(avoided());
        QVERIFY(QFile::remove(path + ".lock"));
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
