// Unproved: written to the interfaces that macOS documents, but neither built nor run on one so far.
//
// macOS has no call for an ordinary user that drops cache, so this is pressure with anonymous memory alone,
// in steps, for as long as the kernel itself calls its memory pressure normal. It is held by this process,
// and given back whatever ends it.
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

constexpr std::uint64_t step = 16 * bytesPerMiB;
/// Of kern.memorystatus_vm_pressure_level: 1 normal, 2 warning, 4 critical.
constexpr int pressureNormal = 1;

template <typename Value> bool ReadSysctl(const char *name, Value &value)
{
    std::size_t size = sizeof value;
    return sysctlbyname(name, &value, &size, nullptr, 0) == 0;
}

bool Look(MemoryState &state, std::string &error)
{
    vm_statistics64_data_t counts = {};
    mach_msg_type_number_t count = HOST_VM_INFO64_COUNT;
    xsw_usage swap = {};
    if (!ReadSysctl("hw.memsize", state.total) ||
        host_statistics64(mach_host_self(), HOST_VM_INFO64, reinterpret_cast<host_info64_t>(&counts),
                          &count) != KERN_SUCCESS) {
        error = "cannot tell how memory is used";
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

std::string Refusal(std::uint64_t asked, const MemoryState &state)
{
    if (asked <= state.free) {
        return FormatByteCount(state.free) + " are free already";
    }
    if (state.inactiveFile < WorthFreeing(state.total)) {
        return "only " + FormatByteCount(state.inactiveFile) + " are inactive";
    }
    return IsPressureNormal() ? std::string() : "memory is short";
}

/// All of the pressure is given back when this returns.
Stop Press(const MemoryState &before, std::uint64_t bound, std::uint64_t msStarted)
{
    void *memory =
        mmap(nullptr, bound, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANON | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED) {
        return Stop::Failed;
    }
    ProgressBar bar;
    PressureProgress progress;
    progress.bound = bound;
    Stop stop = Stop::None;
    while (stop == Stop::None) {
        const std::uint64_t end = std::min(progress.pressed + step, bound);
        for (; progress.pressed < end;
             progress.pressed += static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE))) {
            // Not all alike, or the compressor makes nothing of them.
            static_cast<volatile std::uint64_t *>(memory)[progress.pressed / sizeof(std::uint64_t)] =
                progress.pressed + 1;
        }
        progress.resident = progress.pressed;
        progress.msElapsed = msNow() - msStarted;
        bar.Show(progress.pressed, bound);
        MemoryState now;
        std::string error;
        if (!Look(now, error)) {
            stop = Stop::Failed;
        } else if (IsReaderGone(STDOUT_FILENO)) {
            stop = Stop::NobodyWaits;
        } else {
            stop = IsPressureNormal() ? CheckPressure(before, before, now, progress) : Stop::ShortOfMemory;
        }
    }
    munmap(memory, bound);
    return stop;
}

} // namespace

Outcome FreeMemory(std::uint64_t bytes)
{
    const std::uint64_t msStarted = msNow();
    MemoryState before;
    std::string error;
    if (!Look(before, error)) {
        return {true, error};
    }
    if (const std::string refusal = Refusal(bytes, before); !refusal.empty()) {
        return {false, "nothing to do: " + refusal};
    }
    const Stop stop = Press(before, std::min(bytes, before.free + before.inactiveFile), msStarted);
    MemoryState after;
    if (stop == Stop::Failed || !Look(after, error)) {
        return {true, std::string("could not free memory: ") + Describe(Stop::Failed)};
    }
    const std::uint64_t freed = after.free - std::min(before.free, after.free);
    return {false, "freed " + FormatByteCount(freed) + " by anonymous pressure in " +
                       std::to_string((msNow() - msStarted) / 1000) + " s" +
                       (Describe(stop) ? std::string(" (stopped: ") + Describe(stop) + ")" : std::string())};
}

Outcome PlanMemory(std::uint64_t bytes)
{
    MemoryState state;
    std::string error;
    if (!Look(state, error)) {
        return {true, error};
    }
    const std::string figures = FormatByteCount(state.inactiveFile) + " inactive, " +
                                FormatByteCount(state.free) + " free of " + FormatByteCount(state.total) +
                                "\n";
    const std::string refusal = Refusal(bytes, state);
    return {false, figures + (refusal.empty() ? std::string("would try anonymous pressure")
                                              : "would do nothing: " + refusal)};
}
