#pragma once

#include "memfree/PressureFile.h"
#include "memfree/StoppingRule.h"

#include <functional>
#include <string>

struct PressureRequest
{
    /// The sparse file; without a directory for anonymous pressure.
    PressureFile file;
    std::uint64_t bound = 0;
    /// The memory at the start of the run, which harm is measured against, and when that was (msNow()).
    const MemoryState *before = nullptr;
    std::uint64_t msStarted = 0;
    /// The memory at the start of this pressure.
    const MemoryState *pressureStart = nullptr;
    std::function<void(const PressureProgress &)> onProgress;
};

/// Milliseconds of the monotonic clock.
std::uint64_t msNow();

/// Populates pages step by step until a stopping rule applies, and releases them all before it returns. Reads
/// the proc directory, and for anonymous pressure the limits in the cgroup directory, at every step.
Stop ApplyPressure(const std::string &proc, const std::string &cgroup, const PressureRequest &request);
