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
    const std::uint64_t worth = WorthFreeing(memory.total);
    const std::uint64_t reserve = MemoryReserve(memory.total);
    // All that is free has to be taken first.
    if (memory.inactiveFile < memory.free / 64) {
        return Nothing("only " + FormatByteCount(memory.inactiveFile) + " are inactive beside " +
                       FormatByteCount(memory.free) + " free");
    }
    if (memory.available <= reserve) {
        return Nothing("only " + FormatByteCount(memory.available) + " are available, and " +
                       FormatByteCount(reserve) + " are kept in reserve");
    }
    // Our pages are charged to our own group. At its limit the kernel would take them back instead of
    // anything else.
    const std::uint64_t room = situation.room.room / 16 * 15;
    if (room < memory.free + worth) {
        return Nothing("this control group's limit of " + FormatByteCount(situation.room.limit) +
                       " leaves room for " + FormatByteCount(room) +
                       ", less than is free: pressure from inside would only reclaim itself");
    }
    const std::uint64_t bound = std::min({situation.asked, room, memory.free + memory.inactiveFile + worth});
    if (lastTried < Means::PageCachePressure && !situation.pressureDirectory.empty()) {
        return {Means::PageCachePressure, bound, "with a sparse file in " + situation.pressureDirectory};
    }
    const std::string why = lastTried < Means::PageCachePressure
                                ? "there is no disk file system to press with"
                                : "page-cache pressure could not do it all";
    // A group's limit needs a reserve of its own: unlike cache, this memory cannot be taken back.
    const std::uint64_t groupReserve = std::min(MemoryReserve(situation.room.limit), situation.room.room);
    const std::uint64_t anonymous =
        std::min({bound, memory.available - reserve, situation.room.room - groupReserve});
    if (anonymous < memory.free + worth) {
        return Nothing(why + ", and the reserve of " + FormatByteCount(reserve) + " leaves room for no more");
    }
    return {Means::AnonymousPressure, anonymous, why};
}

} // namespace

Decision Decide(const Situation &situation, Means lastTried)
{
    const MemoryState &memory = situation.memory;
    const std::uint64_t worth = WorthFreeing(memory.total);
    if (situation.asked <= memory.free) {
        return Nothing(FormatByteCount(memory.free) + " are free already");
    }
    if (memory.inactiveFile < worth) {
        return Nothing("only " + FormatByteCount(memory.inactiveFile) + " are inactive");
    }
    if (lastTried < Means::DropCaches && situation.bMayDropCaches) {
        return {Means::DropCaches, 0, "this user may drop the page cache"};
    }
    const bool bCannotSwap = memory.swapFree == 0 || situation.bCgroupsWithoutSwap;
    if (lastTried < Means::CgroupReclaim && bCannotSwap && situation.inactiveInCgroups >= worth) {
        return {Means::CgroupReclaim, 0,
                FormatByteCount(situation.inactiveInCgroups) + " are in control groups of this user"};
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
