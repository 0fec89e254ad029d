#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

/// The kernel's memory figures at one moment, in bytes unless the name says otherwise.
struct MemoryState
{
    std::uint64_t total = 0;
    std::uint64_t free = 0;
    /// The kernel's estimate of what a new program could allocate. Same as free if the kernel gives none.
    std::uint64_t available = 0;
    std::uint64_t activeFile = 0;
    /// File cache that was not used recently: this is what can be freed.
    std::uint64_t inactiveFile = 0;
    /// Not yet written to disk, and not reclaimable before that.
    std::uint64_t dirty = 0;
    std::uint64_t swapFree = 0;
    std::uint64_t swapUsed = 0;
    /// File pages that were read again soon after their eviction, since boot.
    std::uint64_t refaulted = 0;
    /// Pages reclaimed because the machine ran short of memory, since boot. As long as nothing is swapped,
    /// these are file pages.
    std::uint64_t fileReclaimed = 0;
    /// Processes killed because memory ran out, since boot.
    std::uint64_t oomKills = 0;
    /// Time during which all tasks waited for memory at once (PSI "full"), since boot. 0 without PSI.
    std::uint64_t usStalled = 0;
};

/// Parses /proc/meminfo. @return false if total, free or inactive memory is missing or implausible
bool ParseMeminfo(std::string_view report, MemoryState &state);

/// The total of the "full" line of /proc/pressure/memory, in microseconds.
std::optional<std::uint64_t> ParseStalled(std::string_view report);

/// Reads meminfo, vmstat and pressure/memory from a proc directory. @return false and an error text if
/// meminfo cannot be read
bool ReadMemoryState(const std::string &proc, MemoryState &state, std::string &error);

/// How much more memory this process may use before it reaches a limit of its cgroups.
struct CgroupHeadroom
{
    static constexpr std::uint64_t unlimited = std::numeric_limits<std::uint64_t>::max();

    std::uint64_t headroom = unlimited;
    /// The limit with the least headroom.
    std::uint64_t limit = unlimited;
};

/// Finds this process's cgroup in /proc/self/cgroup: in the hierarchy of the given controller (version 1), or
/// in the unified hierarchy (version 2) if the controller is empty. @return its path; empty if there is none
std::string_view FindCgroupPath(std::string_view report, std::string_view controller);

/// Reads the tightest limit between this process's cgroup and the root, in both cgroup versions. memory.high
/// counts as a limit, because the kernel slows a process to a crawl above it.
CgroupHeadroom ReadCgroupHeadroom(const std::string &proc, const std::string &cgroup);
