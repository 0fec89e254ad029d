#include "memfree/StoppingRule.h"

#include "memfree/ByteCount.h"
#include "memfree/MemoryState.h"

#include <algorithm>

namespace {

std::uint64_t Growth(std::uint64_t before, std::uint64_t now)
{
    return now - std::min(before, now);
}

/// How much of the inactive file cache from the start of the run is left: all file cache, less what was
/// active then, less the pressure's own pages. These can be on either of the kernel's two lists.
std::uint64_t InactiveLeft(const MemoryState &before, const MemoryState &now,
                           const PressureProgress &progress)
{
    const std::uint64_t own = progress.bFileCache ? progress.resident : 0;
    return Growth(own + before.activeFile, now.activeFile + now.inactiveFile);
}

} // namespace

std::uint64_t MemoryReserve(std::uint64_t total)
{
    return std::max(total / 20, 256 * bytesPerMiB);
}

std::uint64_t MinWorthFreeing(std::uint64_t total)
{
    return std::max(total / 256, 16 * bytesPerMiB);
}

Stop CheckHarm(const MemoryState &before, const MemoryState &now, std::uint64_t msElapsed)
{
    if (msElapsed >= msDeadline) {
        return Stop::Deadline;
    }
    if (now.available < MemoryReserve(now.total)) {
        return Stop::ShortOfMemory;
    }
    // Other programs can cause swapping too, but even then the run should end.
    if (Growth(before.swapUsed, now.swapUsed) > bytesPerMiB) {
        return Stop::Swapping;
    }
    // At most 1 % of the cache in use, so that a program that keeps reading its file notices nothing. A busy
    // machine always has some refaults.
    const std::uint64_t refaultsAllowed = std::max(before.activeFile / 100, now.total / 2048);
    if (Growth(before.refaulted, now.refaulted) > refaultsAllowed) {
        return Stop::EvictingInUse;
    }
    // On an otherwise idle machine the helper's own wait for memory counts as a stall of all tasks: up to 28
    // % of the time on a slow machine (emulated, 2 GiB), 5 % on a fast one.
    const std::uint64_t usAllowed = 200'000 + msElapsed * 1000 / 3;
    if (Growth(before.usStalled, now.usStalled) > usAllowed) {
        return Stop::Stalling;
    }
    return Stop::None;
}

bool SelfEviction::Dominates(const PressureProgress &progress)
{
    const std::uint64_t window = std::max(progress.bound / 32, 64 * bytesPerMiB);
    const std::uint64_t populated = progress.populated - populatedBefore;
    if (populated < window) {
        return false;
    }
    const std::uint64_t evicted = Growth(progress.resident, progress.populated);
    const bool bDominates = Growth(evictedBefore, evicted) > populated / 2;
    populatedBefore = progress.populated;
    evictedBefore = evicted;
    return bDominates;
}

Stop CheckPressure(const MemoryState &before, const MemoryState &pressureStart, const MemoryState &now,
                   const PressureProgress &progress)
{
    if (const Stop harm = CheckHarm(before, now, progress.msElapsed); harm != Stop::None) {
        return harm;
    }
    const std::uint64_t ownReclaimed =
        progress.bFileCache ? Growth(progress.resident, progress.populated) : 0;
    const std::uint64_t reclaimed =
        Growth(ownReclaimed, Growth(pressureStart.fileReclaimed, now.fileReclaimed));
    if (reclaimed >= pressureStart.inactiveFile ||
        InactiveLeft(before, now, progress) < MinWorthFreeing(now.total) / 4) {
        return Stop::NothingLeft;
    }
    return progress.resident >= progress.bound ? Stop::BoundReached : Stop::None;
}

const char *Describe(Stop stop)
{
    switch (stop) {
    case Stop::ShortOfMemory:
        return "available memory fell to the reserve";
    case Stop::Swapping:
        return "swap use grew";
    case Stop::Stalling:
        return "programs had to wait for memory";
    case Stop::EvictingInUse:
        return "cache in use was being evicted";
    case Stop::Deadline:
        return "it took too long";
    case Stop::Suspended:
        return "the run was suspended";
    case Stop::Killed:
        return "its child process was killed";
    case Stop::ReaderGone:
        return "nobody reads the result";
    case Stop::Failed:
        return "the system refused more";
    case Stop::None:
    case Stop::NothingLeft:
    case Stop::BoundReached:
    case Stop::EvictingOwn:
        break;
    }
    return nullptr;
}
