#include "memfree/MemoryState.h"

#include "memfree/ByteCount.h"
#include "memfree/Files.h"
#include "platform/linux/FindField.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace {

/// A number above this (a PiB) is a broken file.
constexpr std::uint64_t maxKiB = std::uint64_t(1) << 40;

std::optional<std::uint64_t> FindKiB(std::string_view report, std::string_view name)
{
    const auto kibibytes = FindField(report, name);
    return kibibytes && *kibibytes <= maxKiB ? std::optional(*kibibytes * bytesPerKiB) : std::nullopt;
}

struct LimitFiles
{
    const char *limit;
    const char *used;
};

constexpr LimitFiles version1[] = {{"/memory.limit_in_bytes", "/memory.usage_in_bytes"}};
constexpr LimitFiles version2[] = {{"/memory.max", "/memory.current"}, {"/memory.high", "/memory.current"}};

void ApplyLimit(CgroupHeadroom &tightest, const std::string &directory, const LimitFiles &files)
{
    std::string text;
    if (!ReadFile(directory + files.limit, text)) {
        return;
    }
    // "No limit" is "max" in version 2, and the largest number of whole pages in version 1.
    const auto limit = ParseNumber(text);
    if (!limit || *limit > std::uint64_t(1) << 60 || !ReadFile(directory + files.used, text)) {
        return;
    }
    const std::uint64_t used = ParseNumber(text).value_or(0);
    const std::uint64_t headroom = *limit - std::min(used, *limit);
    if (headroom < tightest.headroom) {
        tightest = {headroom, *limit};
    }
}

/// Applies the limits from the cgroup up to the root of the hierarchy. A path that does not exist is skipped:
/// in a container it can be the host's path, and the root of the mount is then the cgroup with the limit.
template <std::size_t n>
void ApplyLimitsUpwards(CgroupHeadroom &tightest, const std::string &root, std::string path,
                        const LimitFiles (&files)[n])
{
    while (true) {
        while (path.ends_with('/')) {
            path.pop_back();
        }
        for (const LimitFiles &pair : files) {
            ApplyLimit(tightest, root + path, pair);
        }
        if (path.empty()) {
            return;
        }
        path.resize(path.find_last_of('/') == std::string::npos ? 0 : path.find_last_of('/'));
    }
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
    const std::size_t line = report.starts_with("full ") ? 0 : report.find("\nfull ");
    if (line == std::string_view::npos) {
        return std::nullopt;
    }
    report.remove_prefix(line + 1);
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
        error = "cannot parse " + meminfo;
        return false;
    }
    if (ReadFile(proc + "/vmstat", report)) {
        const auto pageBytes = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
        // Before kernel 5.9 one counter covered file and anonymous pages.
        const auto filePages = FindField(report, "workingset_refault_file");
        const auto allPages = FindField(report, "workingset_refault");
        state.refaulted = filePages.value_or(allPages.value_or(0)) * pageBytes;
        state.oomKills = FindField(report, "oom_kill").value_or(0);
        // Not pgsteal_file: it also counts what a cgroup at its own limit reclaims from itself.
        for (const char *reclaimer : {"pgsteal_kswapd", "pgsteal_direct", "pgsteal_khugepaged"}) {
            state.fileReclaimed += FindField(report, reclaimer).value_or(0) * pageBytes;
        }
    }
    if (ReadFile(proc + "/pressure/memory", report)) {
        state.usStalled = ParseStalled(report).value_or(0);
    }
    return true;
}

std::string_view FindCgroupPath(std::string_view report, std::string_view controller)
{
    while (!report.empty()) {
        const std::string_view line = report.substr(0, report.find('\n'));
        report.remove_prefix(std::min(line.size() + 1, report.size()));
        // ID:CONTROLLER,CONTROLLER:PATH
        const std::size_t firstColon = line.find(':');
        const std::size_t secondColon =
            firstColon == std::string_view::npos ? firstColon : line.find(':', firstColon + 1);
        if (secondColon == std::string_view::npos) {
            continue;
        }
        std::string_view names = line.substr(firstColon + 1, secondColon - firstColon - 1);
        for (bool bMore = true; bMore;) {
            const std::size_t comma = names.find(',');
            if (names.substr(0, comma) == controller) {
                return line.substr(secondColon + 1);
            }
            bMore = comma != std::string_view::npos;
            names.remove_prefix(bMore ? comma + 1 : 0);
        }
    }
    return {};
}

CgroupHeadroom ReadCgroupHeadroom(const std::string &proc, const std::string &cgroup)
{
    CgroupHeadroom tightest;
    std::string report;
    if (!ReadFile(proc + "/self/cgroup", report)) {
        return tightest;
    }
    if (const auto path = FindCgroupPath(report, "memory"); !path.empty()) {
        ApplyLimitsUpwards(tightest, cgroup + "/memory", std::string(path), version1);
    }
    if (const auto path = FindCgroupPath(report, ""); !path.empty()) {
        ApplyLimitsUpwards(tightest, cgroup, std::string(path), version2);
    }
    return tightest;
}
