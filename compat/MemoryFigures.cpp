#include "compat/MemoryFigures.h"

#include "compat/Files.h"

#include <algorithm>
#include <charconv>
#include <dirent.h>
#include <optional>
#include <span>
#include <string_view>

namespace {

constexpr std::uint64_t nKiBPerPage = 4;
constexpr std::uint64_t nBytesPerPage = 4096;
/// A total beyond this is no memory but a broken file: 2^40 KiB is 2^50 bytes, a PiB.
constexpr std::uint64_t nMaxTotalKiB = std::uint64_t(1) << 40;

struct Field
{
    std::string_view name;
    std::optional<std::uint64_t> value = std::nullopt;
};

/// The first number in the text, blanks before it skipped; nothing for a sign, no digit, or more than 64
/// bits.
std::optional<std::uint64_t> ParseNumber(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    std::uint64_t number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    return result.ec == std::errc() ? std::optional(number) : std::nullopt;
}

/// Fills the fields from lines of the form NAME SEPARATOR NUMBER. A line without a number is as good as
/// missing; of two with the same name the first counts.
void ParseFields(std::string_view report, char separator, std::span<Field> fields)
{
    while (!report.empty()) {
        const std::string_view line = report.substr(0, report.find('\n'));
        report.remove_prefix(std::min(line.size() + 1, report.size()));
        const std::size_t nName = line.find(separator);
        if (nName == std::string_view::npos) {
            continue;
        }
        const std::string_view name = line.substr(0, nName);
        const auto field = std::ranges::find(fields, name, &Field::name);
        if (field != fields.end() && !field->value) {
            field->value = ParseNumber(line.substr(nName + 1));
        }
    }
}

bool ReadDivision(const std::string &path, MemoryFigures &figures, std::string &error)
{
    std::string report;
    if (!ReadFile(path, report)) {
        error = "cannot read " + path + ": " + LastError();
        return false;
    }

    enum
    {
        MemTotal,
        MemFree,
        Act,
        Inact,
        ActAnon,
        InactAnon,
        ActFile,
        InactFile,
        Zswap,
        Zswapped
    };
    Field fields[] = {{"MemTotal"},     {"MemFree"},        {"Active"},       {"Inactive"},
                      {"Active(anon)"}, {"Inactive(anon)"}, {"Active(file)"}, {"Inactive(file)"},
                      {"Zswap"},        {"Zswapped"}};
    ParseFields(report, ':', fields);
    const auto pages = [&fields](auto field) { return fields[field].value.value_or(0) / nKiBPerPage; };

    for (const auto needed : {MemTotal, MemFree}) {
        if (!fields[needed].value) {
            error = path + " does not say " + std::string(fields[needed].name);
            return false;
        }
    }
    const std::uint64_t nTotal = pages(MemTotal);
    if (nTotal == 0 || fields[MemTotal].value > nMaxTotalKiB) {
        error = path + " gives a senseless MemTotal: " + std::to_string(*fields[MemTotal].value) + " kB";
        return false;
    }

    // Only clean cache at the cold end of its list can be given back, so that alone is "inactive": since
    // kernel 5.9 the whole Inactive line holds every program's fresh memory too. A kernel that does not split
    // its lists gives no better.
    const std::uint64_t nInactiveAnon = pages(InactAnon);
    const std::uint64_t nInactive =
        fields[InactFile].value ? pages(InactFile) : pages(Inact) - std::min(nInactiveAnon, pages(Inact));
    const std::uint64_t nActive = fields[ActAnon].value && fields[ActFile].value
                                      ? pages(ActAnon) + pages(ActFile)
                                      : std::max(pages(Act), pages(ActAnon) + pages(ActFile));

    // The kernel does not take its counts at one moment, so they can sum to more than there is. Each takes
    // what the ones before it leave, and "wired" is the rest: the sum is always the total and nothing is ever
    // negative.
    std::uint64_t nLeft = nTotal;
    const auto take = [&nLeft](std::uint64_t nPages) {
        const std::uint64_t nTaken = std::min(nPages, nLeft);
        nLeft -= nTaken;
        return nTaken;
    };
    figures[Free] = take(pages(MemFree));
    figures[Inactive] = take(nInactive);
    figures[Active] = take(nActive);
    figures[Active] += take(nInactiveAnon);
    figures[WiredDown] = nLeft;

    figures[FileBacked] = pages(ActFile) + pages(InactFile);
    figures[Anonymous] = pages(ActAnon) + nInactiveAnon;
    figures[StoredInCompressor] = pages(Zswapped);
    figures[OccupiedByCompressor] = pages(Zswap);
    return true;
}

/// Compressed block devices, mostly used for swap: bytes stored, bytes after compression, bytes of memory
/// used. Their numbers need not follow one another.
void AddZram(const std::string &root, MemoryFigures &figures)
{
    const std::string directory = root + "/sys/block/";
    DIR *const stream = opendir(directory.c_str());
    std::string report;
    while (const dirent *const device = stream != nullptr ? readdir(stream) : nullptr) {
        const std::string name = device->d_name;
        if (!name.starts_with("zram") ||
            !ReadFile(std::string(directory).append(name).append("/mm_stat"), report)) {
            continue;
        }
        std::string_view rest = report;
        std::array<std::uint64_t, 3> nBytes = {};
        for (std::uint64_t &number : nBytes) {
            rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
            number = ParseNumber(rest).value_or(0);
            rest.remove_prefix(std::min(rest.find(' '), rest.size()));
        }
        figures[StoredInCompressor] += nBytes[0] / nBytesPerPage;
        figures[OccupiedByCompressor] += nBytes[2] / nBytesPerPage;
    }
    if (stream != nullptr) {
        closedir(stream);
    }
}

void ReadCounters(const std::string &path, std::uint64_t kernelPageBytes, MemoryFigures &figures)
{
    enum
    {
        Fault,
        Activate,
        LazyFreed,
        ZswapIn,
        ZswapOut,
        PageIn,
        PageOut,
        SwapIn,
        SwapOut
    };
    Field fields[] = {{"pgfault"}, {"pgactivate"}, {"pglazyfreed"}, {"zswpin"}, {"zswpout"},
                      {"pgpgin"},  {"pgpgout"},    {"pswpin"},      {"pswpout"}};
    std::string report;
    if (ReadFile(path, report)) {
        ParseFields(report, ' ', fields);
    }
    const auto count = [&fields](auto field) { return fields[field].value.value_or(0); };
    const auto pages = [&](auto field) { return count(field) * (kernelPageBytes / nBytesPerPage); };

    figures[TranslationFaults] = count(Fault);
    figures[Reactivated] = pages(Activate);
    figures[Purged] = pages(LazyFreed);
    figures[Decompressions] = pages(ZswapIn);
    figures[Compressions] = pages(ZswapOut);
    // Unlike their neighbours, these two count KiB.
    figures[Pageins] = count(PageIn) / nKiBPerPage;
    figures[Pageouts] = count(PageOut) / nKiBPerPage;
    figures[Swapins] = pages(SwapIn);
    figures[Swapouts] = pages(SwapOut);
}

} // namespace

bool ReadMemoryFigures(const std::string &root, std::uint64_t kernelPageBytes, MemoryFigures &figures,
                       std::string &error)
{
    figures = {};
    if (!ReadDivision(root + "/proc/meminfo", figures, error)) {
        return false;
    }
    AddZram(root, figures);
    ReadCounters(root + "/proc/vmstat", kernelPageBytes, figures);
    return true;
}
