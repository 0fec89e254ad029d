#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The lines of the report, in their order.
enum Figure : std::size_t
{
    Free,
    Active,
    Inactive,
    Speculative,
    Throttled,
    WiredDown,
    Purgeable,
    TranslationFaults,
    CopyOnWrite,
    ZeroFilled,
    Reactivated,
    Purged,
    FileBacked,
    Anonymous,
    StoredInCompressor,
    OccupiedByCompressor,
    Decompressions,
    Compressions,
    Pageins,
    Pageouts,
    Swapins,
    Swapouts,
    nFigures
};

/// Counts of 4096-byte pages, whatever the kernel's own page size; TranslationFaults counts events.
using MemoryFigures = std::array<std::uint64_t, nFigures>;

/// Why there are no figures.
struct MemoryProblem
{
    enum Kind
    {
        None,
        Unreadable, ///< detail: the error number
        NoTotal,
        NoFree,
        SenselessTotal ///< detail: the total told, in KiB
    };
    Kind kind = None;
    std::uint64_t detail = 0;

    explicit operator bool() const { return kind != None; }
};

/// What the kernel says about memory now. Free + Active + Inactive + WiredDown is exactly the total; a figure
/// that this kernel or container does not give is 0.
///
/// @param root             "/" for the running system, or a directory with proc/ and sys/ in it
/// @param kernelPageBytes  size of the pages that the kernel counts in, as sysconf(_SC_PAGESIZE) gives it
/// @return a problem if proc/meminfo cannot be read or states no usable total or free memory
MemoryProblem ReadMemoryFigures(const char *root, std::uint64_t kernelPageBytes, MemoryFigures &figures);
