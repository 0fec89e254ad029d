#pragma once

#include "memfree/MemoryState.h"
#include "memfree/PressureFile.h"

#include <string>
#include <vector>

/// The ways to free memory, from the gentlest and fastest on. A method is tried only if the ones before it
/// did not free enough.
enum class Method
{
    None,
    DropCaches,
    CgroupReclaim,
    PageCachePressure,
    AnonymousPressure
};

/// Everything that the decision depends on.
struct Situation
{
    /// How much shall be free in the end. Pressure never exceeds it.
    std::uint64_t asked = 0;
    MemoryState memory;
    CgroupHeadroom cgroup;
    bool bMayDropCaches = false;
    /// The cgroups that this user may have reclaimed, and their inactive file cache.
    std::vector<std::string> reclaimableCgroups;
    std::uint64_t inactiveInCgroups = 0;
    /// Whether the kernel accepts "swappiness=0" for these cgroups. If not, they are reclaimed only while no
    /// swap is free.
    bool bCgroupReclaimWithoutSwap = false;
    /// Where the pages of a sparse file are plain page cache.
    PressureFile pressureFile;
};

struct Decision
{
    Method method = Method::None;
    /// The upper bound for pressure, in bytes.
    std::uint64_t bound = 0;
    /// For users: why this method, or why none.
    std::string reason;
};

/// The most that pressure may populate: free memory, then the inactive cache.
std::uint64_t PressureBound(const Situation &situation);

/// Chooses the next method after the last one tried (None at first) for the present situation.
Decision Decide(const Situation &situation, Method lastTried);

/// For users: "page-cache pressure".
const char *MethodName(Method method);
