#pragma once

#include <cstdint>

struct MemoryState;

/// Why freeing memory ended.
enum class Stop
{
    None,
    /// No inactive cache is left, or only cache that appeared during the run.
    NothingLeft,
    /// Pressure reached its bound: the byte count asked for, or a cgroup's limit.
    BoundReached,
    /// The kernel evicts more of the pressure's own pages than of the old cache.
    EvictingOwn,
    // Going on would harm other programs: it would take memory that they use.
    ShortOfMemory,
    Swapping,
    Stalling,
    EvictingInUse,
    Deadline,
    /// This program was suspended for a while, so the pressure was released.
    Suspended,
    /// Someone killed the process that held the pressure.
    Killed,
    /// The calling program is gone, so nobody reads the result.
    ReaderGone,
    /// A system call failed.
    Failed
};

/// How far the pressure has come, in bytes.
struct PressureProgress
{
    /// Populated since the start, and how much of it is still resident: the kernel evicts these pages too.
    std::uint64_t populated = 0;
    std::uint64_t resident = 0;
    /// Whether the pages are file cache, which the kernel's figures then include.
    bool bFileCache = false;
    /// The upper bound for resident.
    std::uint64_t bound = 0;
    std::uint64_t msElapsed = 0;
};

/// Detects when pressure evicts mainly its own pages. Some of them are always evicted on a machine with
/// cgroups, because the kernel reclaims from each cgroup in proportion to its size.
class SelfEviction
{
public:
    /// Whether more than half of the pages populated in the last window evicted pages of our own. False until
    /// the window is full.
    bool Dominates(const PressureProgress &progress);

private:
    std::uint64_t populatedBefore = 0;
    std::uint64_t evictedBefore = 0;
};

/// What always stays available to other programs: 5 % of the memory, at least 256 MiB.
std::uint64_t MemoryReserve(std::uint64_t total);

/// The smallest amount of inactive memory that is worth a run or another method. An idle desktop reads less
/// than this again at once.
std::uint64_t MinWorthFreeing(std::uint64_t total);

/// How long a run may take, in milliseconds. Five seconds later the process ends itself, whatever it is
/// doing. The application aborts it after 50 s.
constexpr std::uint64_t msDeadline = 40'000;

/// The stopping rules of every method: other programs are harmed, or the deadline has passed.
/// @param before  at the start of the run
Stop CheckHarm(const MemoryState &before, const MemoryState &now, std::uint64_t msElapsed);

/// CheckHarm(), and the stopping rules of pressure: the bound is reached, or nothing inactive is left. Other
/// programs that fill the cache meanwhile would keep the latter from happening, so pressure also ends when it
/// has reclaimed as much as was inactive when it began.
/// @param before         at the start of the run
/// @param pressureStart  at the start of this pressure, after other methods
Stop CheckPressure(const MemoryState &before, const MemoryState &pressureStart, const MemoryState &now,
                   const PressureProgress &progress);

/// For users, as in "stopped: ..."; nullptr for an end that needs no explanation.
const char *Describe(Stop stop);
