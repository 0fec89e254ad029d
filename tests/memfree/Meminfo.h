#pragma once

#include <QByteArrayList>

/// An ordinary /proc/meminfo; the number that is named, if any, is another one, or its line is missing.
inline QByteArray Meminfo(const QByteArray &name = "-", const QByteArray &number = {})
{
    QByteArrayList lines = {"MemTotal: 8000000 kB",  "MemFree: 2000000 kB",     "MemAvailable: 5000000 kB",
                            "Active: 1500000 kB",    "Active(file): 400000 kB", "Inactive(file): 3000000 kB",
                            "SwapTotal: 1000000 kB", "SwapFree: 900000 kB",     "Dirty: 300 kB",
                            "Writeback: 40 kB"};
    for (QByteArray &line : lines) {
        if (line.startsWith(name + ':')) {
            line = number.isNull() ? QByteArray() : name + ": " + number + " kB";
        }
    }
    return lines.join('\n');
}
