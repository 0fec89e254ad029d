#pragma once

#include "memfree/StoppingRule.h"

#include <functional>
#include <string>

struct PressureRequest
{
    /// Where the file goes; empty for anonymous pressure.
    std::string directory;
    std::uint64_t bound = 0;
    /// The situation that harm is measured against, when it was (monotonic, milliseconds), and the situation
    /// now.
    const MemoryState *before = nullptr;
    const MemoryState *first = nullptr;
    std::uint64_t msStarted = 0;
    std::function<void(const PressureProgress &)> onProgress;
};

/// Milliseconds on the clock that is never set.
std::uint64_t msNow();

/// Presses in steps until the stopping rule says so, and returns when all of it is given back. Looks at the
/// proc directory, and at the limits in the cgroup directory, at every step.
Stop Press(const std::string &proc, const std::string &cgroup, const PressureRequest &request);
