#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

constexpr std::uint64_t bytesPerKiB = 1024;
constexpr std::uint64_t bytesPerMiB = bytesPerKiB * 1024;
constexpr std::uint64_t bytesPerGiB = bytesPerMiB * 1024;

/// For users, rounded: "5.93 GiB", "12.0 MiB", "340 KiB".
inline std::string FormatByteCount(std::uint64_t bytes)
{
    struct Unit
    {
        std::uint64_t bytes;
        int decimals;
        const char *name;
    };
    constexpr Unit units[] = {{bytesPerGiB, 2, "GiB"}, {bytesPerMiB, 1, "MiB"}, {0, 0, "KiB"}};
    const Unit *unit = units;
    while (bytes < unit->bytes) {
        ++unit;
    }
    const auto divisor = static_cast<double>(unit->bytes ? unit->bytes : bytesPerKiB);
    char text[40];
    std::snprintf(text, sizeof text, "%.*f %s", unit->decimals, static_cast<double>(bytes) / divisor,
                  unit->name);
    return text;
}
