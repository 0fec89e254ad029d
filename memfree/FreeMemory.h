#pragma once

#include <cstdint>
#include <string>

/// The result of a run. It is printed after all pressure has been released.
struct Outcome
{
    /// Having nothing to do is not a failure.
    bool bFailed = false;
    /// For users, without the last newline.
    std::string text;
};

/// Frees inactive memory with the methods that this system offers to this user, until the given number of
/// bytes is free.
Outcome FreeMemory(std::uint64_t asked);

/// Says what FreeMemory() would do now and why, in one or more lines. Changes nothing.
Outcome DryRun(std::uint64_t asked);
