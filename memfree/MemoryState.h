#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

/// What the kernel says of memory at one moment. Bytes unless the name says otherwise.
struct MemoryState
{
    std::uint64_t total = 0;
    std::uint64_t free = 0;
    /// The kernel's own estimate of what a new program could get; as small as free where a kernel has none.
    std::uint64_t available = 0;
    std::uint64_t activeFile = 0;
    /// File cache not used lately: what can be given back.
    std::uint64_t inactiveFile = 0;
    /// Not written to its file yet, so not to be had before it is.
    std::uint64_t dirty = 0;
    std::uint64_t swapFree = 0;
    std::uint64_t swapUsed = 0;
    /// File pages that were read again soon after they had been evicted, since the start of the machine.
    std::uint64_t refaulted = 0;
    /// Pages that were taken from whoever they belonged to because the machine ran short, since the start:
    /// file pages, as long as nothing is swapped.
    std::uint64_t fileReclaimed = 0;
    /// How long every task at once waited for memory (PSI "full"), since the start; 0 without PSI.
    std::uint64_t usStalled = 0;
};

/// Fills in what /proc/meminfo says; false if it lacks the total, the free or the inactive memory, or if they
/// are senseless.
bool ParseMeminfo(std::string_view report, MemoryState &state);

/// The total of the "full" line of /proc/pressure/memory in microseconds.
std::optional<std::uint64_t> ParseStalled(std::string_view report);

/// Looks at meminfo, vmstat and pressure/memory in a proc directory. @return false, and why, if memory cannot
/// be read.
bool ReadMemoryState(const std::string &proc, MemoryState &state, std::string &error);

/// How much more a process may use before a limit of its control groups is reached.
struct CgroupRoom
{
    static constexpr std::uint64_t unlimited = std::numeric_limits<std::uint64_t>::max();

    std::uint64_t room = unlimited;
    /// The limit that leaves the least room.
    std::uint64_t limit = unlimited;
};

/// The path of the group in /proc/self/cgroup: of the memory controller's hierarchy (version 1), or the
/// unified one (version 2) with an empty controller. Empty if the report has none.
std::string_view FindCgroupPath(std::string_view report, std::string_view controller);

/// The tightest of the limits on the way from this process's group up to the root, both versions; memory.high
/// counts as a limit, since beyond it the kernel slows the process down to a crawl.
CgroupRoom ReadCgroupRoom(const std::string &proc, const std::string &cgroup);
