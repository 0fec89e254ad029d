#include "memfree/Pressure.h"

#include "memfree/ByteCount.h"
#include "memfree/Files.h"
#include "memfree/MemoryState.h"
#include "memfree/PressureChild.h"
#include "platform/linux/FindField.h"

#include <algorithm>
#include <ctime>
#include <unistd.h>

namespace {

constexpr std::uint64_t minStep = 4 * bytesPerMiB;
constexpr std::uint64_t maxStep = 64 * bytesPerMiB;

/// During a step that takes longer than this, the rules are checked before it ends.
constexpr int msCheckInterval = 50;

/// Keeps a step between about 10 and 50 ms: long enough that the checks cost nothing, short enough that harm
/// does not last.
std::uint64_t NextStep(std::uint64_t step, std::uint64_t msSpent)
{
    if (msSpent < 10) {
        return std::min(step * 2, maxStep);
    }
    return msSpent > 50 ? std::max(step / 2, minStep) : step;
}

/// The free memory that the kernel keeps for itself. Below this mark every program that allocates has to
/// reclaim first, and waits for it.
std::uint64_t KernelReserve(const std::string &proc)
{
    std::string text;
    return ReadFile(proc + "/sys/vm/min_free_kbytes", text) ? ParseNumber(text).value_or(0) * bytesPerKiB : 0;
}

/// Once no memory is free, kswapd reclaims in the background, at half the speed of our pressure. Waits until
/// kswapd has caught up or sleeps. Otherwise other programs would have to reclaim for their own allocations.
void WaitForKswapd(const std::string &proc, std::uint64_t kernelReserve)
{
    // kswapd goes on until one and a half times the reserve is free.
    const std::uint64_t enough = kernelReserve + kernelReserve / 2;
    std::uint64_t best = 0;
    for (int idleRounds = 0; idleRounds < 6;) {
        std::string meminfo;
        const std::uint64_t free = ReadFile(proc + "/meminfo", meminfo)
                                       ? FindField(meminfo, "MemFree").value_or(0) * bytesPerKiB
                                       : enough;
        if (free >= enough) {
            return;
        }
        idleRounds = free > best ? 0 : idleRounds + 1;
        best = std::max(best, free);
        const timespec pause = {0, 500'000};
        nanosleep(&pause, nullptr);
    }
}

/// Stop::Failed leads to the next method, which must not happen after the kernel ran out of memory.
Stop ReasonForFailure(const PressureChild &child, const std::string &proc, const MemoryState &before)
{
    MemoryState now;
    std::string error;
    switch (child.End()) {
    case ChildEnd::Killed:
        return ReadMemoryState(proc, now, error) && now.oomKills == before.oomKills ? Stop::Killed
                                                                                    : Stop::ShortOfMemory;
    case ChildEnd::NotNeeded:
        return Stop::Suspended;
    case ChildEnd::Failed:
        break;
    }
    return Stop::Failed;
}

Stop CheckRules(const std::string &proc, const std::string &cgroup, const PressureRequest &request,
                const PressureProgress &progress, bool bStepDone, std::uint64_t &free)
{
    if (IsReaderGone(STDOUT_FILENO)) {
        return Stop::ReaderGone;
    }
    MemoryState now;
    std::string error;
    if (!ReadMemoryState(proc, now, error)) {
        return Stop::Failed;
    }
    free = now.free;
    if (!progress.bFileCache) {
        const CgroupHeadroom tightest = ReadCgroupHeadroom(proc, cgroup);
        if (tightest.headroom < MemoryReserve(tightest.limit) / 2) {
            return Stop::ShortOfMemory;
        }
    }
    return bStepDone ? CheckPressure(*request.before, *request.pressureStart, now, progress)
                     : CheckHarm(*request.before, now, progress.msElapsed);
}

} // namespace

std::uint64_t msNow()
{
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<std::uint64_t>(now.tv_sec) * 1000 +
           static_cast<std::uint64_t>(now.tv_nsec) / 1'000'000;
}

Stop ApplyPressure(const std::string &proc, const std::string &cgroup, const PressureRequest &request)
{
    // Whole MiB are whole pages, whatever the page size.
    const std::uint64_t bound = request.bound / bytesPerMiB * bytesPerMiB;
    const bool bFile = !request.file.directory.empty();
    // More than the bound, which limits the resident pages: some are evicted meanwhile.
    PressureSource source = {-1, bFile ? request.file.size : bound * 4};
    if (bFile) {
        source.descriptor = OpenPressureFile(request.file);
        if (source.descriptor < 0) {
            return Stop::Failed;
        }
    }
    PressureChild child(source);
    if (bFile) {
        // Only the child keeps the file open, so the pages are released when the child ends.
        close(source.descriptor);
    }

    PressureProgress progress;
    progress.bFileCache = bFile;
    progress.bound = bound;
    SelfEviction selfEviction;
    const std::uint64_t kernelReserve = KernelReserve(proc);
    std::uint64_t step = minStep;
    while (child.Started()) {
        const std::uint64_t bytes =
            std::min({step, source.size - progress.populated, std::max(bound - progress.resident, minStep)});
        const std::uint64_t msStepStart = msNow();
        PressureReply reply;
        if (!child.Populate(bytes)) {
            break;
        }
        Stop stop = Stop::None;
        std::uint64_t free = 0;
        while (stop == Stop::None) {
            const bool bReplied = child.WaitForReply(msCheckInterval, reply);
            if (bReplied && !reply.bPopulated) {
                return ReasonForFailure(child, proc, *request.before);
            }
            if (bReplied) {
                progress.populated += bytes;
                progress.resident = reply.resident;
                request.onProgress(progress);
            }
            progress.msElapsed = msNow() - request.msStarted;
            stop = CheckRules(proc, cgroup, request, progress, bReplied, free);
            if (bReplied) {
                break;
            }
        }
        if (stop != Stop::None) {
            return stop;
        }
        if (selfEviction.Dominates(progress) || progress.populated == source.size) {
            return Stop::EvictingOwn;
        }
        step = NextStep(step, msNow() - msStepStart);
        if (free < kernelReserve * 2 + step) {
            // Less than the distance between the mark that wakes kswapd and the reserve.
            step = std::min(step, std::max(kernelReserve / 8, minStep));
            WaitForKswapd(proc, kernelReserve);
        }
    }
    return ReasonForFailure(child, proc, *request.before);
}
