#pragma once

#include <cstdint>

struct MemoryState;

/// Why reclaiming went no further.
enum class Stop
{
    None,
    /// Nothing inactive is left, or only what came to life meanwhile.
    NothingLeft,
    /// As much pressure as was allowed: the byte count that was asked for, or a control group's limit.
    Bound,
    /// The kernel takes more of our own pages than of the old ones.
    TakingOwn,
    /// The rest is harm: each of these means that more would be taken from somebody who uses it.
    ShortOfMemory,
    Swapping,
    Stalling,
    EvictingInUse,
    /// It takes too long.
    Deadline,
    /// Whoever asked for it is gone.
    NobodyWaits,
    /// A system call said no.
    Failed
};

/// What the pressure has come to so far, in bytes.
struct PressureProgress
{
    /// Pressed in all, and of these still in memory: the kernel takes our own pages too.
    std::uint64_t pressed = 0;
    std::uint64_t resident = 0;
    /// Whether the pages are file cache, and so counted as such.
    bool bFileCache = false;
    /// Of resident.
    std::uint64_t bound = 0;
    std::uint64_t msElapsed = 0;
};

/// Tells when pressing takes hardly anything but our own pages any more. Some of them are taken all the time
/// where control groups are in use, since the kernel takes from each in proportion to its size.
class OwnPagesTaken
{
public:
    /// True if more than half of what was pressed since some time ago has cost pages of our own.
    bool Mostly(const PressureProgress &progress);

private:
    std::uint64_t pressedBefore = 0;
    std::uint64_t takenBefore = 0;
};

/// What is kept available to everyone: 5 % of the memory, 256 MiB at least.
std::uint64_t MemoryReserve(std::uint64_t total);

/// Less inactive memory than this is not worth a run, nor a further step: what an idle desktop reads again at
/// once.
std::uint64_t WorthFreeing(std::uint64_t total);

/// How long all of it may take, in milliseconds: below the 50 s after which whoever asked gives us up.
constexpr std::uint64_t msDeadline = 40'000;

/// What holds for every way of reclaiming: whether somebody is being harmed, or the time is over.
Stop CheckHarm(const MemoryState &before, const MemoryState &now, std::uint64_t msElapsed);

/// How much of the inactive file cache that there was before is left. The pressure's own pages may stand on
/// either of the kernel's lists, so what counts is all file cache less our own and less what was active
/// before.
std::uint64_t InactiveLeft(const MemoryState &before, const MemoryState &now,
                           const PressureProgress &progress);

/// CheckHarm() for pressure, with its own ends: the bound, and nothing left to press out. Where others fill
/// the cache meanwhile that never comes, so as much as was inactive at first is all that is taken.
/// @param before  when the run began
/// @param first   when this pressure began, after other ways
Stop CheckPressure(const MemoryState &before, const MemoryState &first, const MemoryState &now,
                   const PressureProgress &progress);

/// For people, as in "stopped: ..."; nullptr where the end needs no explanation.
const char *Describe(Stop stop);
