#include "compat/MemoryFigures.h"

#include "compat/KernelCall.h"

#include <algorithm>
#include <charconv>
#include <dirent.h>
#include <fcntl.h>
#include <optional>
#include <span>
#include <string_view>
#include <sys/syscall.h>

// Nothing here allocates memory or calls the C library: osascript asks for the figures before that has begun.

namespace {

constexpr std::uint64_t nKiBPerPage = 4;
constexpr std::uint64_t nBytesPerPage = 4096;
/// A total beyond this is no memory but a broken file: 2^40 KiB is 2^50 bytes, a PiB.
constexpr std::uint64_t nMaxTotalKiB = std::uint64_t(1) << 40;

/// What is beyond it is not read. The kernel's files take 2 to 8 KiB, and only what they take is touched.
using Buffer = std::array<char, 65536>;

/// @return a descriptor, or the negative error number
int Open(int directory, const char *path, int flags = O_RDONLY)
{
    return static_cast<int>(KernelCall(SYS_openat, directory, KernelArgument(path), flags | O_CLOEXEC));
}

/// @param error  set to the error number where nothing could be read
std::string_view ReadFile(int directory, const char *path, Buffer &buffer, int &error)
{
    const int descriptor = Open(directory, path);
    long nNow = descriptor;
    std::size_t n = 0;
    while (descriptor >= 0 && n < buffer.size()) {
        nNow = KernelCall(SYS_read, descriptor, KernelArgument(buffer.data() + n),
                          static_cast<long>(buffer.size() - n));
        if (nNow <= 0) {
            break;
        }
        n += static_cast<std::size_t>(nNow);
    }
    if (descriptor >= 0) {
        KernelCall(SYS_close, descriptor);
    }
    error = nNow < 0 ? static_cast<int>(-nNow) : 0;
    return {buffer.data(), n};
}

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

MemoryProblem ReadDivision(int root, MemoryFigures &figures)
{
    Buffer buffer;
    int error = 0;
    const std::string_view report = ReadFile(root, "proc/meminfo", buffer, error);
    if (error != 0) {
        return {MemoryProblem::Unreadable, static_cast<std::uint64_t>(error)};
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

    if (!fields[MemTotal].value) {
        return {MemoryProblem::NoTotal};
    }
    if (!fields[MemFree].value) {
        return {MemoryProblem::NoFree};
    }
    const std::uint64_t nTotal = pages(MemTotal);
    if (nTotal == 0 || fields[MemTotal].value > nMaxTotalKiB) {
        return {MemoryProblem::SenselessTotal, *fields[MemTotal].value};
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
    return {};
}

/// A device's bytes stored, bytes after compression, bytes of memory used.
void AddZramDevice(std::string_view report, MemoryFigures &figures)
{
    std::array<std::uint64_t, 3> nBytes = {};
    for (std::uint64_t &number : nBytes) {
        report.remove_prefix(std::min(report.find_first_not_of(' '), report.size()));
        number = ParseNumber(report).value_or(0);
        report.remove_prefix(std::min(report.find(' '), report.size()));
    }
    figures[StoredInCompressor] += nBytes[0] / nBytesPerPage;
    figures[OccupiedByCompressor] += nBytes[2] / nBytesPerPage;
}

/// Compressed block devices, mostly used for swap. Their numbers need not follow one another.
void AddZram(int root, MemoryFigures &figures)
{
    const int directory = Open(root, "sys/block", O_RDONLY | O_DIRECTORY);
    if (directory < 0) {
        return;
    }
    alignas(dirent64) char entries[8192];
    long nBytes = 0;
    while ((nBytes = KernelCall(SYS_getdents64, directory, KernelArgument(entries), sizeof entries)) > 0) {
        for (long at = 0; at < nBytes;) {
            const auto *const entry = reinterpret_cast<const dirent64 *>(entries + at);
            at += entry->d_reclen;
            if (!std::string_view(entry->d_name).starts_with("zram")) {
                continue;
            }
            if (const int device = Open(directory, entry->d_name, O_PATH); device >= 0) {
                Buffer buffer;
                int error = 0;
                AddZramDevice(ReadFile(device, "mm_stat", buffer, error), figures);
                KernelCall(SYS_close, device);
            }
        }
    }
    KernelCall(SYS_close, directory);
}

void ReadCounters(int root, std::uint64_t kernelPageBytes, MemoryFigures &figures)
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
    Buffer buffer;
    int error = 0;
    ParseFields(ReadFile(root, "proc/vmstat", buffer, error), ' ', fields);
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

MemoryProblem ReadMemoryFigures(const char *root, std::uint64_t kernelPageBytes, MemoryFigures &figures)
{
    figures = {};
    const int directory = Open(AT_FDCWD, root, O_PATH | O_DIRECTORY);
    if (directory < 0) {
        return {MemoryProblem::Unreadable, static_cast<std::uint64_t>(-directory)};
    }
    const MemoryProblem problem = ReadDivision(directory, figures);
    if (!problem) {
        AddZram(directory, figures);
        ReadCounters(directory, kernelPageBytes, figures);
    }
    KernelCall(SYS_close, directory);
    return problem;
}
