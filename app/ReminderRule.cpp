#include "app/ReminderRule.h"

bool IsReminderDue(const QVariantMap &record, const QVariantMap &stats)
{
    if (!record.value(QStringLiteral("Remind")).toBool()) {
        return false;
    }
    const auto inactive = static_cast<double>(stats.value(QStringLiteral("Inactive")).toLongLong());
    const double limitMiB = record.value(QStringLiteral("RemindThreshold")).toDouble() * 1024.0;
    return inactive > limitMiB * 1024.0 * 1024.0;
}
