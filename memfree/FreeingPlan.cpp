#include "memfree/FreeingPlan.h"

#include "memfree/ByteCount.h"
#include "memfree/StoppingRule.h"

#include <algorithm>

namespace {

Decision DoNothing(const std::string &reason)
{
    return {Method::None, 0, reason};
}

/// Pressure pages are charged to this process's own cgroup. At the cgroup's limit the kernel would reclaim
/// them instead of other cache.
std::uint64_t UsableHeadroom(const CgroupHeadroom &cgroup)
{
    return cgroup.headroom / 16 * 15;
}

Decision DecidePressure(const Situation &situation, Method lastTried)
{
    const MemoryState &memory = situation.memory;
    const std::uint64_t minGain = MinWorthFreeing(memory.total);
    const std::uint64_t reserve = MemoryReserve(memory.total);
    // All free memory has to be taken before any cache, which is not worth it for so little cache.
    if (memory.inactiveFile < memory.free / 64) {
        return DoNothing("only " + FormatByteCount(memory.inactiveFile) + " are inactive beside " +
                         FormatByteCount(memory.free) + " free");
    }
    if (memory.available <= reserve) {
        return DoNothing("only " + FormatByteCount(memory.available) + " are available, and " +
                         FormatByteCount(reserve) + " are kept in reserve");
    }
    const std::uint64_t headroom = UsableHeadroom(situation.cgroup);
    if (headroom < memory.free + minGain) {
        return DoNothing("this control group's limit of " + FormatByteCount(situation.cgroup.limit) +
                         " leaves room for " + FormatByteCount(headroom) +
                         ", less than is free: pressure would only reclaim its own pages");
    }
    const std::uint64_t bound = PressureBound(situation);
    const std::string &directory = situation.pressureFile.directory;
    if (lastTried < Method::PageCachePressure && !directory.empty()) {
        return {Method::PageCachePressure, bound, "with a sparse file in " + directory};
    }
    const std::string reason =
        lastTried < Method::PageCachePressure
            ? "no disk file system can be used for a sparse file of " + FormatByteCount(bound)
            : "page-cache pressure did not free enough";
    // The kernel cannot take anonymous pages back, so the cgroup's limit needs a reserve too.
    const std::uint64_t cgroupReserve =
        std::min(MemoryReserve(situation.cgroup.limit), situation.cgroup.headroom);
    const std::uint64_t anonymousBound =
        std::min({bound, memory.available - reserve, situation.cgroup.headroom - cgroupReserve});
    if (anonymousBound < memory.free + minGain) {
        return DoNothing(reason + ", and the reserve of " + FormatByteCount(reserve) +
                         " leaves room for no more");
    }
    return {Method::AnonymousPressure, anonymousBound, reason};
}

} // namespace

std::uint64_t PressureBound(const Situation &situation)
{
    const MemoryState &memory = situation.memory;
    // Slightly more than free and inactive memory, whose pages are spread over the kernel's zones and lists.
    return std::min({situation.asked, UsableHeadroom(situation.cgroup),
                     memory.free + memory.inactiveFile + MinWorthFreeing(memory.total)});
}

Decision Decide(const Situation &situation, Method lastTried)
{
    const MemoryState &memory = situation.memory;
    const std::uint64_t minGain = MinWorthFreeing(memory.total);
    if (situation.asked <= memory.free) {
        return DoNothing(FormatByteCount(memory.free) + " are free already");
    }
    if (memory.inactiveFile < minGain) {
        return DoNothing("only " + FormatByteCount(memory.inactiveFile) + " are inactive");
    }
    if (lastTried < Method::DropCaches && situation.bMayDropCaches) {
        return {Method::DropCaches, 0, "this user may drop the page cache"};
    }
    const bool bCannotSwap = memory.swapFree == 0 || situation.bCgroupReclaimWithoutSwap;
    if (lastTried < Method::CgroupReclaim && bCannotSwap && situation.inactiveInCgroups >= minGain) {
        return {Method::CgroupReclaim, 0,
                FormatByteCount(situation.inactiveInCgroups) + " are in control groups of this user"};
    }
    if (lastTried < Method::AnonymousPressure) {
        return DecidePressure(situation, lastTried);
    }
    return DoNothing("all methods have been tried");
}

const char *MethodName(Method method)
{
    switch (method) {
    case Method::DropCaches:
        return "dropping the page cache";
    case Method::CgroupReclaim:
        return "control group reclaim";
    case Method::PageCachePressure:
        return "page-cache pressure";
    case Method::AnonymousPressure:
        return "anonymous pressure";
    case Method::None:
        break;
    }
    return "nothing";
}
