#pragma once

#include <QByteArray>

/// An ordinary /proc/meminfo with one text replaced, for example one of its numbers, which all differ.
inline QByteArray Meminfo(const QByteArray &text = {}, const QByteArray &replacement = {})
{
    return QByteArray(
               "MemTotal: 8000000 kB\nMemFree: 2000000 kB\nMemAvailable: 5000000 kB\nActive: 1500000 kB\n"
               "Active(file): 400000 kB\nInactive(file): 3000000 kB\nSwapTotal: 1000000 kB\n"
               "SwapFree: 900000 kB\nDirty: 300 kB\nWriteback: 40 kB\n")
        .replace(text, replacement);
}
