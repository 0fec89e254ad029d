#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

// For the application and for the helper alike, and therefore without Qt.

/// The decimal number at the start of a text, blanks before it skipped. Nothing for a sign, for no digit, and
/// for more than 64 bits.
std::optional<std::uint64_t> ParseNumber(std::string_view text);

/// The number of the first line "NAME: NUMBER" or "NAME NUMBER" in a report of the kernel's: /proc/meminfo
/// (KiB), /proc/vmstat (pages), memory.stat (bytes) and their like.
std::optional<std::uint64_t> FindField(std::string_view report, std::string_view name);
