#include "memfree/StoppingRule.h"

#include "memfree/ByteCount.h"
#include "memfree/MemoryState.h"

#include <algorithm>

namespace {

std::uint64_t Growth(std::uint64_t before, std::uint64_t now)
{
    return now - std::min(before, now);
}

} // namespace

std::uint64_t MemoryReserve(std::uint64_t total)
{
    return std::max(total / 20, 256 * bytesPerMiB);
}

std::uint64_t WorthFreeing(std::uint64_t total)
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
    // Others swap too, but a run that coincides with it had better end.
    if (Growth(before.swapUsed, now.swapUsed) > bytesPerMiB) {
        return Stop::Swapping;
    }
    // Below 1 % of what is in use, so that a bystander that reads its file all the time notices nothing; some
    // of it is always read again on a machine at work.
    const std::uint64_t refaultsAllowed = std::max(before.activeFile / 100, now.total / 2048);
    if (Growth(before.refaulted, now.refaulted) > refaultsAllowed) {
        return Stop::EvictingInUse;
    }
    // On a machine that is otherwise idle our own wait for the kernel counts as everybody's: up to 28 % of
    // the time on a slow one (emulated, 2 GiB), 5 % on a fast one.
    const std::uint64_t usAllowed = 200'000 + msElapsed * 1000 / 3;
    if (Growth(before.usStalled, now.usStalled) > usAllowed) {
        return Stop::Stalling;
    }
    return Stop::None;
}

bool OwnPagesTaken::Mostly(const PressureProgress &progress)
{
    const std::uint64_t window = std::max(progress.bound / 32, 64 * bytesPerMiB);
    const std::uint64_t pressed = progress.pressed - pressedBefore;
    if (pressed < window) {
        return false;
    }
    const std::uint64_t taken = Growth(progress.resident, progress.pressed);
    const bool bMostly = Growth(takenBefore, taken) > pressed / 2;
    pressedBefore = progress.pressed;
    takenBefore = taken;
    return bMostly;
}

std::uint64_t InactiveLeft(const MemoryState &before, const MemoryState &now,
                           const PressureProgress &progress)
{
    const std::uint64_t own = progress.bFileCache ? progress.resident : 0;
    return Growth(own + before.activeFile, now.activeFile + now.inactiveFile);
}

Stop CheckPressure(const MemoryState &before, const MemoryState &first, const MemoryState &now,
                   const PressureProgress &progress)
{
    if (const Stop harm = CheckHarm(before, now, progress.msElapsed); harm != Stop::None) {
        return harm;
    }
    const std::uint64_t ownTaken = progress.bFileCache ? Growth(progress.resident, progress.pressed) : 0;
    const std::uint64_t taken = Growth(ownTaken, Growth(first.fileReclaimed, now.fileReclaimed));
    if (taken >= first.inactiveFile || InactiveLeft(before, now, progress) < WorthFreeing(now.total) / 4) {
        return Stop::NothingLeft;
    }
    return progress.resident >= progress.bound ? Stop::Bound : Stop::None;
}

const char *Describe(Stop stop)
{
    switch (stop) {
    case Stop::ShortOfMemory:
        return "available memory came down to the reserve";
    case Stop::Swapping:
        return "swap in use grew";
    case Stop::Stalling:
        return "programs had to wait for memory";
    case Stop::EvictingInUse:
        return "cache in use was being evicted";
    case Stop::Deadline:
        return "it took too long";
    case Stop::NobodyWaits:
        return "nobody waits for it";
    case Stop::Failed:
        return "the system refused more";
    case Stop::None:
    case Stop::NothingLeft:
    case Stop::Bound:
    case Stop::TakingOwn:
        break;
    }
    return nullptr;
}
