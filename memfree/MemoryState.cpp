#include "memfree/MemoryState.h"

#include "memfree/ByteCount.h"
#include "memfree/Files.h"
#include "platform/linux/FindField.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace {

/// No memory but a broken file: 2^50 bytes, a PiB.
constexpr std::uint64_t maxKiB = std::uint64_t(1) << 40;

std::optional<std::uint64_t> FindKiB(std::string_view report, std::string_view name)
{
    const auto kibibytes = FindField(report, name);
    return kibibytes && *kibibytes <= maxKiB ? std::optional(*kibibytes * bytesPerKiB) : std::nullopt;
}

} // namespace

bool ParseMeminfo(std::string_view report, MemoryState &state)
{
    const auto total = FindKiB(report, "MemTotal");
    const auto free = FindKiB(report, "MemFree");
    const auto inactive = FindKiB(report, "Inactive(file)");
    if (!total || !free || !inactive || *total == 0 || *free > *total || *inactive > *total) {
        return false;
    }
    state.total = *total;
    state.free = *free;
    state.inactiveFile = *inactive;
    state.available = FindKiB(report, "MemAvailable").value_or(*free);
    state.activeFile = FindKiB(report, "Active(file)").value_or(0);
    state.dirty = FindKiB(report, "Dirty").value_or(0) + FindKiB(report, "Writeback").value_or(0);
    state.swapFree = FindKiB(report, "SwapFree").value_or(0);
    state.swapUsed = std::max(FindKiB(report, "SwapTotal").value_or(0), state.swapFree) - state.swapFree;
    return true;
}

std::optional<std::uint64_t> ParseStalled(std::string_view report)
{
    const std::size_t lineStart = report.starts_with("full ") ? 0 : report.find("\nfull ");
    if (lineStart == std::string_view::npos) {
        return std::nullopt;
    }
    report.remove_prefix(lineStart + 1);
    report = report.substr(0, report.find('\n'));
    constexpr std::string_view key = " total=";
    const std::size_t total = report.find(key);
    return total == std::string_view::npos ? std::nullopt : ParseNumber(report.substr(total + key.size()));
}

bool ReadMemoryState(const std::string &proc, MemoryState &state, std::string &error)
{
    state = {};
    std::string report;
    const std::string meminfo = proc + "/meminfo";
    if (!ReadFile(meminfo, report)) {
        error = "cannot read " + meminfo + ": " + std::strerror(errno);
        return false;
    }
    if (!ParseMeminfo(report, state)) {
        error = "cannot make sense of " + meminfo;
        return false;
    }
    if (ReadFile(proc + "/vmstat", report)) {
        const auto pageBytes = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
        // Before kernel 5.9 one counter held both kinds.
        const auto refaultedPages = FindField(report, "workingset_refault_file");
        const auto refaultedPagesOld = FindField(report, "workingset_refault");
        state.refaulted = refaultedPages.value_or(refaultedPagesOld.value_or(0)) * pageBytes;
        // Not pgsteal_file, which also counts what a control group at its own limit takes from itself.
        for (const char *taker : {"pgsteal_kswapd", "pgsteal_direct", "pgsteal_khugepaged"}) {
            state.fileReclaimed += FindField(report, taker).value_or(0) * pageBytes;
        }
    }
    if (ReadFile(proc + "/pressure/memory", report)) {
        state.usStalled = ParseStalled(report).value_or(0);
    }
    return true;
}
