#include "memfree/Pressure.h"

#include "memfree/ByteCount.h"
#include "memfree/Files.h"
#include "memfree/MemoryState.h"
#include "memfree/PressureChild.h"
#include "memfree/PressureFile.h"
#include "platform/linux/FindField.h"

#include <algorithm>
#include <ctime>
#include <unistd.h>

namespace {

constexpr std::uint64_t minStep = 4 * bytesPerMiB;
constexpr std::uint64_t maxStep = 64 * bytesPerMiB;

/// While a step takes longer than this, the rules are looked at without waiting for its end.
constexpr int msLook = 50;

/// Steps of about 10 to 50 ms: long enough that looking costs nothing, short enough that a harm is not done
/// for long.
std::uint64_t NextStep(std::uint64_t step, std::uint64_t msTaken)
{
    if (msTaken < 10) {
        return std::min(step * 2, maxStep);
    }
    return msTaken > 50 ? std::max(step / 2, minStep) : step;
}

/// What the kernel keeps back for itself. Below it every program that wants memory has to reclaim some first,
/// and wait.
std::uint64_t KernelReserve(const std::string &proc)
{
    std::string text;
    return ReadFile(proc + "/sys/vm/min_free_kbytes", text) ? ParseNumber(text).value_or(0) * bytesPerKiB : 0;
}

/// Once free memory has run out the kernel's own thread makes room, in the background, at half our speed.
/// Waits until it has caught up or rests, so that it is it that reclaims, and not any program that happens to
/// want a page.
void LetKernelCatchUp(const std::string &proc, std::uint64_t kernelReserve)
{
    // The thread goes on until a half more than the reserve is free.
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

/// Memory that ran out is no reason to try the next way.
Stop AfterFailure(const PressureChild &child)
{
    return child.Killed() ? Stop::ShortOfMemory : Stop::Failed;
}

Stop Check(const std::string &proc, const std::string &cgroup, const PressureRequest &request,
           const PressureProgress &progress, bool bStepDone, std::uint64_t &free)
{
    if (IsReaderGone(STDOUT_FILENO)) {
        return Stop::NobodyWaits;
    }
    MemoryState now;
    std::string error;
    if (!ReadMemoryState(proc, now, error)) {
        return Stop::Failed;
    }
    free = now.free;
    if (!progress.bFileCache) {
        const CgroupRoom room = ReadCgroupRoom(proc, cgroup);
        if (room.room < MemoryReserve(room.limit) / 2) {
            return Stop::ShortOfMemory;
        }
    }
    return bStepDone ? CheckPressure(*request.before, *request.first, now, progress)
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

Stop Press(const std::string &proc, const std::string &cgroup, const PressureRequest &request)
{
    // Whole pages, of whatever size.
    const std::uint64_t bound = request.bound / bytesPerMiB * bytesPerMiB;
    // Beyond the bound, which is for what is held at a time: some of it is taken back while we press.
    PressureSource source = {-1, bound * 4};
    const bool bFile = !request.directory.empty();
    if (bFile) {
        source.descriptor = OpenPressureFile(request.directory, source.size);
        if (source.descriptor < 0) {
            return Stop::Failed;
        }
    }
    PressureChild child(source);
    if (bFile) {
        // The child's alone: the pages go with its last descriptor.
        close(source.descriptor);
    }

    PressureProgress progress;
    progress.bFileCache = bFile;
    progress.bound = bound;
    OwnPagesTaken taken;
    const std::uint64_t kernelReserve = KernelReserve(proc);
    std::uint64_t step = minStep;
    while (child.Started()) {
        const std::uint64_t next =
            std::min({step, source.size - progress.pressed, std::max(bound - progress.resident, minStep)});
        const std::uint64_t msStep = msNow();
        PressureReply reply;
        if (!child.Press(next)) {
            break;
        }
        Stop stop = Stop::None;
        std::uint64_t free = 0;
        while (stop == Stop::None) {
            const bool bReplied = child.WaitForReply(msLook, reply);
            if (bReplied && !reply.bDone) {
                return AfterFailure(child);
            }
            if (bReplied) {
                progress.pressed += next;
                progress.resident = reply.resident;
                request.onProgress(progress);
            }
            progress.msElapsed = msNow() - request.msStarted;
            stop = Check(proc, cgroup, request, progress, bReplied, free);
            if (bReplied) {
                break;
            }
        }
        if (stop != Stop::None) {
            return stop;
        }
        if (taken.Mostly(progress) || progress.pressed == source.size) {
            return Stop::TakingOwn;
        }
        step = NextStep(step, msNow() - msStep);
        if (free < kernelReserve * 2 + step) {
            // Less than lies between the mark at which the thread wakes and the reserve.
            step = std::min(step, std::max(kernelReserve / 8, minStep));
            LetKernelCatchUp(proc, kernelReserve);
        }
    }
    return AfterFailure(child);
}
