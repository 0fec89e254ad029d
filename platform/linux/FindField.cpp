#include "platform/linux/FindField.h"

#include <algorithm>
#include <charconv>

std::optional<std::uint64_t> ParseNumber(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() ? std::optional(number) : std::nullopt;
}

std::optional<std::uint64_t> FindField(std::string_view report, std::string_view name)
{
    while (!report.empty()) {
        const std::string_view line = report.substr(0, report.find('\n'));
        // The name ends at a colon or a blank, so that "Active" is not found in "Active(file)".
        if (line.starts_with(name) && line.size() > name.size() &&
            (line[name.size()] == ':' || line[name.size()] == ' ')) {
            return ParseNumber(line.substr(name.size() + 1));
        }
        report.remove_prefix(std::min(line.size() + 1, report.size()));
    }
    return std::nullopt;
}
