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

std::uint64_t MemoryReserve(std::uint64_t nTotal)
{
    return std::max(nTotal / 20, 256 * nBytesPerMiB);
}

std::uint64_t WorthFreeing(std::uint64_t nTotal)
{
    return std::max(nTotal / 256, 16 * nBytesPerMiB);
}

Stop CheckHarm(const MemoryState &before, const MemoryState &now, std::uint64_t msElapsed)
{
    if (msElapsed >= msDeadline) {
        return Stop::Deadline;
    }
    if (now.nAvailable < MemoryReserve(now.nTotal)) {
        return Stop::ShortOfMemory;
    }
    // Others swap too, but a run that coincides with it had better end.
    if (Growth(before.nSwapUsed, now.nSwapUsed) > nBytesPerMiB) {
        return Stop::Swapping;
    }
    // Below 1 % of what is in use, so that a bystander that reads its file all the time notices nothing; some
    // of it is always read again on a machine at work.
    const std::uint64_t nRefaultsAllowed = std::max(before.nActiveFile / 100, now.nTotal / 2048);
    if (Growth(before.nRefaulted, now.nRefaulted) > nRefaultsAllowed) {
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
    const std::uint64_t nWindow = std::max(progress.nBound / 32, 64 * nBytesPerMiB);
    const std::uint64_t nPressed = progress.nPressed - nPressedBefore;
    if (nPressed < nWindow) {
        return false;
    }
    const std::uint64_t nTaken = Growth(progress.nResident, progress.nPressed);
    const bool bMostly = Growth(nTakenBefore, nTaken) > nPressed / 2;
    nPressedBefore = progress.nPressed;
    nTakenBefore = nTaken;
    return bMostly;
}

std::uint64_t InactiveLeft(const MemoryState &before, const MemoryState &now,
                           const PressureProgress &progress)
{
    const std::uint64_t nOwn = progress.bFileCache ? progress.nResident : 0;
    return Growth(nOwn + before.nActiveFile, now.nActiveFile + now.nInactiveFile);
}

Stop CheckPressure(const MemoryState &before, const MemoryState &first, const MemoryState &now,
                   const PressureProgress &progress)
{
    if (const Stop harm = CheckHarm(before, now, progress.msElapsed); harm != Stop::None) {
        return harm;
    }
    const std::uint64_t nOwnTaken = progress.bFileCache ? Growth(progress.nResident, progress.nPressed) : 0;
    const std::uint64_t nTaken = Growth(nOwnTaken, Growth(first.nFileReclaimed, now.nFileReclaimed));
    if (nTaken >= first.nInactiveFile || InactiveLeft(before, now, progress) < WorthFreeing(now.nTotal) / 4) {
        return Stop::NothingLeft;
    }
    return progress.nResident >= progress.nBound ? Stop::Bound : Stop::None;
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
