#include "memfree/FreeingPlan.h"

#include "memfree/ByteCount.h"
#include "memfree/StoppingRule.h"

#include <algorithm>

namespace {

Decision Nothing(const std::string &reason)
{
    return {Means::Nothing, 0, reason};
}

/// Pressure takes free memory first, then the oldest cache. A little more than both, since what is free and
/// inactive is spread over the kernel's zones and lists.
Decision DecidePressure(const Situation &situation, Means lastTried)
{
    const MemoryState &memory = situation.memory;
    const std::uint64_t nWorth = WorthFreeing(memory.nTotal);
    const std::uint64_t nReserve = MemoryReserve(memory.nTotal);
    // All that is free has to be taken first.
    if (memory.nInactiveFile < memory.nFree / 64) {
        return Nothing("only " + FormatByteCount(memory.nInactiveFile) + " are inactive beside " +
                       FormatByteCount(memory.nFree) + " free");
    }
    if (memory.nAvailable <= nReserve) {
        return Nothing("only " + FormatByteCount(memory.nAvailable) + " are available, and " +
                       FormatByteCount(nReserve) + " are kept in reserve");
    }
    // Our pages are charged to our own group. At its limit the kernel would take them back instead of
    // anything else.
    const std::uint64_t nRoom = situation.room.nRoom / 16 * 15;
    if (nRoom < memory.nFree + nWorth) {
        return Nothing("this control group's limit of " + FormatByteCount(situation.room.nLimit) +
                       " leaves room for " + FormatByteCount(nRoom) +
                       ", less than is free: pressure from inside would only reclaim itself");
    }
    const std::uint64_t nBound =
        std::min({situation.nAsked, nRoom, memory.nFree + memory.nInactiveFile + nWorth});
    if (lastTried < Means::PageCachePressure && !situation.pressureDirectory.empty()) {
        return {Means::PageCachePressure, nBound, "with a sparse file in " + situation.pressureDirectory};
    }
    const std::string why = lastTried < Means::PageCachePressure
                                ? "there is no disk file system to press with"
                                : "page-cache pressure could not do it all";
    // A group's limit needs a reserve of its own: unlike cache, this memory cannot be taken back.
    const std::uint64_t nGroupReserve = std::min(MemoryReserve(situation.room.nLimit), situation.room.nRoom);
    const std::uint64_t nAnonymous =
        std::min({nBound, memory.nAvailable - nReserve, situation.room.nRoom - nGroupReserve});
    if (nAnonymous < memory.nFree + nWorth) {
        return Nothing(why + ", and the reserve of " + FormatByteCount(nReserve) +
                       " leaves room for no more");
    }
    return {Means::AnonymousPressure, nAnonymous, why};
}

} // namespace

Decision Decide(const Situation &situation, Means lastTried)
{
    const MemoryState &memory = situation.memory;
    const std::uint64_t nWorth = WorthFreeing(memory.nTotal);
    if (situation.nAsked <= memory.nFree) {
        return Nothing(FormatByteCount(memory.nFree) + " are free already");
    }
    if (memory.nInactiveFile < nWorth) {
        return Nothing("only " + FormatByteCount(memory.nInactiveFile) + " are inactive");
    }
    if (lastTried < Means::DropCaches && situation.bMayDropCaches) {
        return {Means::DropCaches, 0, "this user may drop the page cache"};
    }
    const bool bCannotSwap = memory.nSwapFree == 0 || situation.bCgroupsWithoutSwap;
    if (lastTried < Means::CgroupReclaim && bCannotSwap && situation.nInCgroups >= nWorth) {
        return {Means::CgroupReclaim, 0,
                FormatByteCount(situation.nInCgroups) + " are in control groups of this user"};
    }
    if (lastTried < Means::AnonymousPressure) {
        return DecidePressure(situation, lastTried);
    }
    return Nothing("all ways have been tried");
}

const char *Name(Means means)
{
    switch (means) {
    case Means::DropCaches:
        return "dropping the page cache";
    case Means::CgroupReclaim:
        return "control group reclaim";
    case Means::PageCachePressure:
        return "page-cache pressure";
    case Means::AnonymousPressure:
        return "anonymous pressure";
    case Means::Nothing:
        break;
    }
    return "nothing";
}
