#pragma once

#include <QDir>
#include <QFile>

/// False also for a zombie: an orphan may find no parent that reaps it.
inline bool IsAlive(const QByteArray &pid)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(QLatin1String(pid.isEmpty() ? "-" : pid)));
    return file.open(QIODevice::ReadOnly) && !file.readAll().contains(") Z ");
}

/// How many descriptors ("fd") or threads ("task") this process has.
inline qsizetype CountOwn(const char *kind)
{
    return QDir(QLatin1String("/proc/self/") + QLatin1String(kind))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
        .size();
}
