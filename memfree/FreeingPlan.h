#pragma once

#include "memfree/MemoryState.h"

#include <string>

/// The ladder: the gentlest and quickest first; each is tried only if the ones before could not do it.
enum class Means
{
    Nothing,
    DropCaches,
    CgroupReclaim,
    PageCachePressure,
    AnonymousPressure
};

/// All that the decision rests on.
struct Situation
{
    /// What is asked to be free in the end; pressure never goes beyond it.
    std::uint64_t asked = 0;
    MemoryState memory;
    CgroupRoom room;
    bool bMayDropCaches = false;
    /// Inactive file cache in the control groups that this user may shrink.
    std::uint64_t inactiveInCgroups = 0;
    /// Whether the kernel takes "swappiness=0" there; without, groups are left alone where there is swap to
    /// write to.
    bool bCgroupsWithoutSwap = false;
    /// Where a file can be made whose pages are mere cache; empty if there is no such place.
    std::string pressureDirectory;
};

struct Decision
{
    Means means = Means::Nothing;
    /// How much pressure at most, in bytes.
    std::uint64_t bound = 0;
    /// For people: why, or why not.
    std::string reason;
};

/// The next rung, above the last one tried (Nothing at first), for the situation as it is now.
Decision Decide(const Situation &situation, Means lastTried);

/// For people: "page-cache pressure".
const char *Name(Means means);
