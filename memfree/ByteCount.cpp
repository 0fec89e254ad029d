#include "memfree/ByteCount.h"

#include <charconv>
#include <cstdio>
#include <limits>

std::optional<std::uint64_t> ParseByteCount(std::string_view text)
{
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number <= 0) {
        return std::nullopt;
    }
    return static_cast<std::uint64_t>(number);
}

std::string FormatByteCount(std::uint64_t nBytes)
{
    struct Unit
    {
        std::uint64_t nBytes;
        int nDecimals;
        const char *name;
    };
    constexpr Unit units[] = {{nBytesPerGiB, 2, "GiB"}, {nBytesPerMiB, 1, "MiB"}, {0, 0, "KiB"}};
    const Unit *unit = units;
    while (nBytes < unit->nBytes) {
        ++unit;
    }
    const auto nDivisor = static_cast<double>(unit->nBytes ? unit->nBytes : nBytesPerKiB);
    char text[40];
    std::snprintf(text, sizeof text, "%.*f %s", unit->nDecimals, static_cast<double>(nBytes) / nDivisor,
                  unit->name);
    return text;
}
