#pragma once

#include <QtGlobal>

// Byte counts are signed 64-bit. A malformed report may hold any number, so these wrap around where plain
// signed arithmetic would be undefined.

inline qlonglong AddBytes(qlonglong a, qlonglong b)
{
    return static_cast<qlonglong>(static_cast<qulonglong>(a) + static_cast<qulonglong>(b));
}

inline qlonglong SubtractBytes(qlonglong a, qlonglong b)
{
    return static_cast<qlonglong>(static_cast<qulonglong>(a) - static_cast<qulonglong>(b));
}

inline qlonglong MultiplyBytes(qlonglong bytes, qlonglong factor)
{
    return static_cast<qlonglong>(static_cast<qulonglong>(bytes) * static_cast<qulonglong>(factor));
}
