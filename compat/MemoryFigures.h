#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

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

/// What the kernel says about memory now. Free + Active + Inactive + WiredDown is exactly the total; a figure
/// that this kernel or container does not give is 0.
///
/// @param root             "" for the running system, or a directory with proc/ and sys/ in it
/// @param kernelPageBytes  size of the pages that the kernel counts in, as sysconf(_SC_PAGESIZE) gives it
/// @param error            one line without a line end, set when the result is false
/// @return false if proc/meminfo cannot be read or states no usable total or free memory
bool ReadMemoryFigures(const std::string &root, std::uint64_t kernelPageBytes, MemoryFigures &figures,
                       std::string &error);
