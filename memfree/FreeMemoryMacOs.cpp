// Untested: written against the documented macOS interfaces, but neither built nor run on macOS so far.
//
// macOS offers an ordinary user no call that drops cache. So the only method is pressure with anonymous
// memory, in steps, while the kernel reports normal memory pressure. This process holds the memory itself, so
// its end releases it, whatever the cause.
#include "memfree/FreeMemory.h"

#include "memfree/ByteCount.h"
#include "memfree/Files.h"
#include "memfree/MemoryState.h"
#include "memfree/ProgressBar.h"
#include "memfree/StoppingRule.h"

#include <algorithm>
#include <ctime>
#include <mach/mach.h>
#include <sys/mman.h>
#include <sys/sysctl.h>
#include <unistd.h>

namespace {

constexpr std::uint64_t stepSize = 16 * bytesPerMiB;
/// A value of kern.memorystatus_vm_pressure_level. The others are 2 for warning and 4 for critical.
constexpr int pressureNormal = 1;

template <typename Value> bool ReadSysctl(const char *name, Value &value)
{
    std::size_t size = sizeof value;
    return sysctlbyname(name, &value, &size, nullptr, 0) == 0;
}

bool ReadMemoryState(MemoryState &state, std::string &error)
{
    vm_statistics64_data_t counts = {};
    mach_msg_type_number_t size = HOST_VM_INFO64_COUNT;
    xsw_usage swap = {};
    if (!ReadSysctl("hw.memsize", state.total) ||
        host_statistics64(mach_host_self(), HOST_VM_INFO64, reinterpret_cast<host_info64_t>(&counts),
                          &size) != KERN_SUCCESS) {
        error = "cannot read the memory statistics";
        return false;
    }
    const auto pageBytes = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
    state.free = counts.free_count * pageBytes;
    state.inactiveFile = counts.inactive_count * pageBytes;
    state.available = state.free + state.inactiveFile;
    state.swapUsed = ReadSysctl("vm.swapusage", swap) ? swap.xsu_used : 0;
    return true;
}

std::uint64_t msNow()
{
    return clock_gettime_nsec_np(CLOCK_MONOTONIC) / 1'000'000;
}

bool IsPressureNormal()
{
    int level = pressureNormal;
    return !ReadSysctl("kern.memorystatus_vm_pressure_level", level) || level == pressureNormal;
}

/// Why there is nothing to do; empty if there is.
std::string ReasonForNothing(std::uint64_t asked, const MemoryState &state)
{
    if (asked <= state.free) {
        return FormatByteCount(state.free) + " are free already";
    }
    if (state.inactiveFile < MinWorthFreeing(state.total)) {
        return "only " + FormatByteCount(state.inactiveFile) + " are inactive";
    }
    return IsPressureNormal() ? std::string() : "memory is short";
}

/// Releases all of its memory before it returns.
Stop ApplyPressure(const MemoryState &before, std::uint64_t bound, std::uint64_t msStarted)
{
    void *memory =
        mmap(nullptr, bound, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANON | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED) {
        return Stop::Failed;
    }
    const auto pageBytes = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
    ProgressBar bar;
    PressureProgress progress;
    progress.bound = bound;
    Stop stop = Stop::None;
    while (stop == Stop::None) {
        const std::uint64_t end = std::min(progress.populated + stepSize, bound);
        for (; progress.populated < end; progress.populated += pageBytes) {
            // A different value per page, because the kernel compresses equal pages to almost nothing.
            static_cast<volatile std::uint64_t *>(memory)[progress.populated / sizeof(std::uint64_t)] =
                progress.populated + 1;
        }
        progress.resident = progress.populated;
        progress.msElapsed = msNow() - msStarted;
        bar.Show(progress.populated, bound);
        MemoryState now;
        std::string error;
        if (!ReadMemoryState(now, error)) {
            stop = Stop::Failed;
        } else if (IsReaderGone(STDOUT_FILENO)) {
            stop = Stop::ReaderGone;
        } else {
            stop = IsPressureNormal() ? CheckPressure(before, before, now, progress) : Stop::ShortOfMemory;
        }
    }
    munmap(memory, bound);
    return stop;
}

} // namespace

Outcome FreeMemory(std::uint64_t asked)
{
    const std::uint64_t msStarted = msNow();
    MemoryState before;
    std::string error;
    if (!ReadMemoryState(before, error)) {
        return {true, error};
    }
    if (const std::string reason = ReasonForNothing(asked, before); !reason.empty()) {
        return {false, "nothing to do: " + reason};
    }
    const Stop stop = ApplyPressure(before, std::min(asked, before.free + before.inactiveFile), msStarted);
    MemoryState after;
    if (stop == Stop::Failed || !ReadMemoryState(after, error)) {
        return {true, std::string("could not free memory: ") + Describe(Stop::Failed)};
    }
    const std::uint64_t freed = after.free - std::min(before.free, after.free);
    return {false, "freed " + FormatByteCount(freed) + " by anonymous pressure in " +
                       std::to_string((msNow() - msStarted) / 1000) + " s" +
                       (Describe(stop) ? std::string(" (stopped: ") + Describe(stop) + ")" : std::string())};
}

Outcome DryRun(std::uint64_t asked)
{
    MemoryState state;
    std::string error;
    if (!ReadMemoryState(state, error)) {
        return {true, error};
    }
    const std::string figures = FormatByteCount(state.inactiveFile) + " inactive, " +
                                FormatByteCount(state.free) + " free of " + FormatByteCount(state.total) +
                                "\n";
    const std::string reason = ReasonForNothing(asked, state);
    return {false, figures + (reason.empty() ? std::string("would try anonymous pressure")
                                             : "would do nothing: " + reason)};
}
