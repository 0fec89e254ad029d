#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

constexpr std::uint64_t bytesPerKiB = 1024;
constexpr std::uint64_t bytesPerMiB = bytesPerKiB * 1024;
constexpr std::uint64_t bytesPerGiB = bytesPerMiB * 1024;

/// A byte count as it is given on the command line: decimal digits only, more than zero, within 63 bits.
std::optional<std::uint64_t> ParseByteCount(std::string_view text);

/// For people: "5.93 GiB", "12.0 MiB", "340 KiB". Rounded, three digits at least.
std::string FormatByteCount(std::uint64_t bytes);
