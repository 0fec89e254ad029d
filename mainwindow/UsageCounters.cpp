#include "mainwindow/UsageCounters.h"

#include <QSettings>

#include <limits>

bool CountUsage(UsageCounter counter)
{
    const bool bStart = counter == UsageCounter::Starts;
    const QString key =
        bStart ? QStringLiteral("Application/StartCount") : QStringLiteral("Application/ExecCount");
    QSettings settings;
    const int nBefore = settings.value(key, 0).toInt();
    settings.setValue(key, nBefore < std::numeric_limits<int>::max() ? nBefore + 1 : nBefore);
    return nBefore > (bStart ? 15 : 20);
}
