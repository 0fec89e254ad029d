// Unproved: written to the interfaces that macOS documents, but neither built nor run on one so far.
//
// macOS has no call for an ordinary user that drops cache, so this is pressure with anonymous memory alone,
// in steps, for as long as the kernel itself calls its memory pressure normal. It is held by this process,
// and given back whatever ends it.
#include "memfree/Reclaim.h"

#include "memfree/ByteCount.h"
#include "memfree/MemoryState.h"
#include "memfree/Progress.h"
#include "memfree/Reader.h"
#include "memfree/StoppingRule.h"

#include <algorithm>
#include <ctime>
#include <mach/mach.h>
#include <sys/mman.h>
#include <sys/sysctl.h>
#include <unistd.h>

namespace {

constexpr std::uint64_t nStep = 16 * nBytesPerMiB;
/// Of kern.memorystatus_vm_pressure_level: 1 normal, 2 warning, 4 critical.
constexpr int pressureNormal = 1;

template <typename Value> bool ReadSysctl(const char *name, Value &value)
{
    std::size_t nSize = sizeof value;
    return sysctlbyname(name, &value, &nSize, nullptr, 0) == 0;
}

bool Look(MemoryState &state, std::string &error)
{
    vm_statistics64_data_t counts = {};
    mach_msg_type_number_t nCount = HOST_VM_INFO64_COUNT;
    xsw_usage swap = {};
    if (!ReadSysctl("hw.memsize", state.nTotal) ||
        host_statistics64(mach_host_self(), HOST_VM_INFO64, reinterpret_cast<host_info64_t>(&counts),
                          &nCount) != KERN_SUCCESS) {
        error = "cannot tell how memory is used";
        return false;
    }
    const auto nPage = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
    state.nFree = counts.free_count * nPage;
    state.nInactiveFile = counts.inactive_count * nPage;
    state.nAvailable = state.nFree + state.nInactiveFile;
    state.nSwapUsed = ReadSysctl("vm.swapusage", swap) ? swap.xsu_used : 0;
    return true;
}

std::uint64_t msNow()
{
    return clock_gettime_nsec_np(CLOCK_MONOTONIC) / 1'000'000;
}

bool IsPressureNormal()
{
    int nLevel = pressureNormal;
    return !ReadSysctl("kern.memorystatus_vm_pressure_level", nLevel) || nLevel == pressureNormal;
}

std::string Refusal(std::uint64_t nAsked, const MemoryState &state)
{
    if (nAsked <= state.nFree) {
        return FormatByteCount(state.nFree) + " are free already";
    }
    if (state.nInactiveFile < WorthFreeing(state.nTotal)) {
        return "only " + FormatByteCount(state.nInactiveFile) + " are inactive";
    }
    return IsPressureNormal() ? std::string() : "memory is short";
}

/// All of the pressure is given back when this returns.
Stop Press(const MemoryState &before, std::uint64_t nBound, std::uint64_t msStarted)
{
    void *memory =
        mmap(nullptr, nBound, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANON | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED) {
        return Stop::Failed;
    }
    Progress bar;
    PressureProgress progress;
    progress.nBound = nBound;
    Stop stop = Stop::None;
    while (stop == Stop::None) {
        const std::uint64_t nEnd = std::min(progress.nPressed + nStep, nBound);
        for (; progress.nPressed < nEnd;
             progress.nPressed += static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE))) {
            // Not all alike, or the compressor makes nothing of them.
            static_cast<volatile std::uint64_t *>(memory)[progress.nPressed / sizeof(std::uint64_t)] =
                progress.nPressed + 1;
        }
        progress.nResident = progress.nPressed;
        progress.msElapsed = msNow() - msStarted;
        bar.Show(progress.nPressed, nBound);
        MemoryState now;
        std::string error;
        if (!Look(now, error)) {
            stop = Stop::Failed;
        } else if (IsReaderGone()) {
            stop = Stop::NobodyWaits;
        } else {
            stop = IsPressureNormal() ? CheckPressure(before, before, now, progress) : Stop::ShortOfMemory;
        }
    }
    munmap(memory, nBound);
    return stop;
}

} // namespace

Outcome FreeMemory(std::uint64_t nBytes)
{
    const std::uint64_t msStarted = msNow();
    MemoryState before;
    std::string error;
    if (!Look(before, error)) {
        return {true, error};
    }
    if (const std::string refusal = Refusal(nBytes, before); !refusal.empty()) {
        return {false, "nothing to do: " + refusal};
    }
    const Stop stop = Press(before, std::min(nBytes, before.nFree + before.nInactiveFile), msStarted);
    MemoryState after;
    if (stop == Stop::Failed || !Look(after, error)) {
        return {true, std::string("could not free memory: ") + Describe(Stop::Failed)};
    }
    const std::uint64_t nFreed = after.nFree - std::min(before.nFree, after.nFree);
    return {false, "freed " + FormatByteCount(nFreed) + " by anonymous pressure in " +
                       std::to_string((msNow() - msStarted) / 1000) + " s" +
                       (Describe(stop) ? std::string(" (stopped: ") + Describe(stop) + ")" : std::string())};
}

Outcome PlanMemory(std::uint64_t nBytes)
{
    MemoryState state;
    std::string error;
    if (!Look(state, error)) {
        return {true, error};
    }
    const std::string figures = FormatByteCount(state.nInactiveFile) + " inactive, " +
                                FormatByteCount(state.nFree) + " free of " + FormatByteCount(state.nTotal) +
                                "\n";
    const std::string refusal = Refusal(nBytes, state);
    return {false, figures + (refusal.empty() ? std::string("would try anonymous pressure")
                                              : "would do nothing: " + refusal)};
}
