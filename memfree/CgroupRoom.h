#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

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
