#include "compat/MemoryReport.h"

#include <algorithm>
#include <charconv>

// Nothing here allocates memory or calls the C library: osascript reports before that has begun.

namespace {

constexpr std::array<std::string_view, nFigures> labels = {{
    "Pages free:",
    "Pages active:",
    "Pages inactive:",
    "Pages speculative:",
    "Pages throttled:",
    "Pages wired down:",
    "Pages purgeable:",
    "\"Translation faults\":",
    "Pages copy-on-write:",
    "Pages zero filled:",
    "Pages reactivated:",
    "Pages purged:",
    "File-backed pages:",
    "Anonymous pages:",
    "Pages stored in compressor:",
    "Pages occupied by compressor:",
    "Decompressions:",
    "Compressions:",
    "Pageins:",
    "Pageouts:",
    "Swapins:",
    "Swapouts:",
}};

constexpr std::ptrdiff_t nLabelWidth = 30;
constexpr std::ptrdiff_t nCountWidth = 17;
constexpr std::size_t nMaxDigits = 20;
static_assert(nMaxReportBytes >= memoryReportHeader.size() + nFigures * (nLabelWidth + nMaxDigits + 2));

} // namespace

std::string_view MemoryReport(const MemoryFigures &figures, ReportBuffer &buffer)
{
    char *end = std::ranges::copy(memoryReportHeader, buffer.data()).out;
    for (std::size_t figure = 0; figure < nFigures; ++figure) {
        std::array<char, nMaxDigits> digits;
        const auto nDigits =
            std::to_chars(digits.data(), digits.data() + digits.size(), figures[figure]).ptr - digits.data();
        char *const countEnd = end + nLabelWidth + std::max(nCountWidth, nDigits);
        std::fill(end, countEnd, ' ');
        std::ranges::copy(labels[figure], end);
        std::copy_n(digits.data(), nDigits, countEnd - nDigits);
        end = std::ranges::copy(std::string_view(".\n"), countEnd).out;
    }
    return {buffer.data(), static_cast<std::size_t>(end - buffer.data())};
}
