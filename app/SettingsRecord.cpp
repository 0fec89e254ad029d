#include "app/SettingsRecord.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>

namespace {

const QString settingsKey = QStringLiteral("Application/Settings");

bool Flag(const QVariantMap &record, const char *key)
{
    return record.value(QLatin1String(key)).toBool();
}

} // namespace

void AvoidBlockingSettings()
{
    const QString organization = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                                 QLatin1Char('/') + QCoreApplication::organizationName();
    const QString suffix = QStringLiteral(".conf");
    const QString path = organization + QLatin1Char('/') + QCoreApplication::applicationName() + suffix;
    const QString lock = path + QStringLiteral(".lock");
    // QSettings also looks into a file for all of the organization's programs.
    for (const QString &name : {path, lock, organization + suffix}) {
        const QFileInfo file(name);
        const bool bLinkForLock = name == lock && file.isSymLink();
        if (bLinkForLock || (file.exists() && !file.isFile())) {
            QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
        }
    }
}

void AddDefaultSettings(QVariantMap &record)
{
    static const std::pair<const char *, QVariant> defaults[] = {
        {"AutoLaunch", false}, {"StayOnTop", true},    {"AutoHide", false}, {"HideAtStartUp", false},
        {"WindowStyle", 0},    {"PieChartIcon", true}, {"Remind", false},   {"RemindThreshold", 1.0},
        {"NoTitleBar", false}, {"UpdateFrequency", 0},
    };
    for (const auto &[key, value] : defaults) {
        if (!record.contains(QLatin1String(key))) {
            record.insert(QLatin1String(key), value);
        }
    }
}

QVariantMap LoadSettings()
{
    QVariantMap record = QSettings().value(settingsKey).toMap();
    AddDefaultSettings(record);
    return record;
}

void SaveSettings(const QVariantMap &record)
{
    QSettings settings;
    const QVariant stored = settings.value(settingsKey);
    const QVariantMap old = stored.toMap();
    const auto sameType = [](const QVariant &a, const QVariant &b) { return a.metaType() == b.metaType(); };
    if (stored.metaType() != QMetaType::fromType<QVariantMap>() || old != record ||
        !std::equal(old.begin(), old.end(), record.begin(), sameType)) {
        settings.setValue(settingsKey, record);
    }
}

bool NeedsWindowFlags(const QVariantMap &newRecord, const QVariantMap &oldRecord, bool bWindowVisible)
{
    return Flag(newRecord, "NoTitleBar") != Flag(oldRecord, "NoTitleBar") ||
           Flag(newRecord, "StayOnTop") != Flag(oldRecord, "StayOnTop") || !bWindowVisible;
}

Qt::WindowFlags MainWindowFlags(const QVariantMap &record)
{
    Qt::WindowFlags flags = Qt::WindowSystemMenuHint;
    flags.setFlag(Qt::WindowStaysOnTopHint, Flag(record, "StayOnTop"));
    flags.setFlag(Qt::FramelessWindowHint, Flag(record, "NoTitleBar"));
    return flags;
}

bool IsReminderDue(const QVariantMap &record, const QVariantMap &stats)
{
    const auto inactive = static_cast<double>(stats.value(QStringLiteral("Inactive")).toLongLong());
    const double limit =
        record.value(QStringLiteral("RemindThreshold")).toDouble() * 1024.0 * 1024.0 * 1024.0;
    return Flag(record, "Remind") && inactive > limit;
}
