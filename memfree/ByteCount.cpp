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

std::string FormatByteCount(std::uint64_t bytes)
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
