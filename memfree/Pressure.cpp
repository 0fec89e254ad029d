#include "memfree/Pressure.h"

#include "memfree/ByteCount.h"
#include "memfree/CgroupRoom.h"
#include "memfree/Files.h"
#include "memfree/MemoryState.h"
#include "memfree/PressureChild.h"
#include "memfree/PressureFile.h"
#include "memfree/Reader.h"
#include "platform/linux/FindField.h"

#include <algorithm>
#include <ctime>
#include <unistd.h>

namespace {

constexpr std::uint64_t nMinStep = 4 * nBytesPerMiB;
constexpr std::uint64_t nMaxStep = 64 * nBytesPerMiB;

/// While a step takes longer than this, the rules are looked at without waiting for its end.
constexpr int msLook = 50;

/// Steps of about 10 to 50 ms: long enough that looking costs nothing, short enough that a harm is not done
/// for long.
std::uint64_t NextStep(std::uint64_t nStep, std::uint64_t msTaken)
{
    if (msTaken < 10) {
        return std::min(nStep * 2, nMaxStep);
    }
    return msTaken > 50 ? std::max(nStep / 2, nMinStep) : nStep;
}

/// What the kernel keeps back for itself. Below it every program that wants memory has to reclaim some first,
/// and wait.
std::uint64_t KernelReserve(const std::string &proc)
{
    std::string text;
    return ReadFile(proc + "/sys/vm/min_free_kbytes", text) ? ParseNumber(text).value_or(0) * nBytesPerKiB
                                                            : 0;
}

/// Once free memory has run out the kernel's own thread makes room, in the background, at half our speed.
/// Waits until it has caught up or rests, so that it is it that reclaims, and not any program that happens to
/// want a page.
void LetKernelCatchUp(const std::string &proc, std::uint64_t nKernelReserve)
{
    // The thread goes on until a half more than the reserve is free.
    const std::uint64_t nEnough = nKernelReserve + nKernelReserve / 2;
    std::uint64_t nBest = 0;
    for (int nIdle = 0; nIdle < 6;) {
        std::string meminfo;
        const std::uint64_t nFree = ReadFile(proc + "/meminfo", meminfo)
                                        ? FindField(meminfo, "MemFree").value_or(0) * nBytesPerKiB
                                        : nEnough;
        if (nFree >= nEnough) {
            return;
        }
        nIdle = nFree > nBest ? 0 : nIdle + 1;
        nBest = std::max(nBest, nFree);
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
           const PressureProgress &progress, bool bStepDone, std::uint64_t &nFree)
{
    if (IsReaderGone()) {
        return Stop::NobodyWaits;
    }
    MemoryState now;
    std::string error;
    if (!ReadMemoryState(proc, now, error)) {
        return Stop::Failed;
    }
    nFree = now.nFree;
    if (!progress.bFileCache) {
        const CgroupRoom room = ReadCgroupRoom(proc, cgroup);
        if (room.nRoom < MemoryReserve(room.nLimit) / 2) {
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
    const std::uint64_t nBound = request.nBound / nBytesPerMiB * nBytesPerMiB;
    // Beyond the bound, which is for what is held at a time: some of it is taken back while we press.
    PressureSource source = {-1, nBound * 4};
    const bool bFile = !request.directory.empty();
    if (bFile) {
        source.descriptor = OpenPressureFile(request.directory, source.nSize);
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
    progress.nBound = nBound;
    OwnPagesTaken taken;
    const std::uint64_t nKernelReserve = KernelReserve(proc);
    std::uint64_t nStep = nMinStep;
    while (child.Started()) {
        const std::uint64_t nNow = std::min(
            {nStep, source.nSize - progress.nPressed, std::max(nBound - progress.nResident, nMinStep)});
        const std::uint64_t msStep = msNow();
        PressureReply reply;
        if (!child.Press(nNow)) {
            break;
        }
        Stop stop = Stop::None;
        std::uint64_t nFree = 0;
        while (stop == Stop::None) {
            const bool bReplied = child.WaitForReply(msLook, reply);
            if (bReplied && !reply.bDone) {
                return AfterFailure(child);
            }
            if (bReplied) {
                progress.nPressed += nNow;
                progress.nResident = reply.nResident;
                request.onProgress(progress);
            }
            progress.msElapsed = msNow() - request.msStarted;
            stop = Check(proc, cgroup, request, progress, bReplied, nFree);
            if (bReplied) {
                break;
            }
        }
        if (stop != Stop::None) {
            return stop;
        }
        if (taken.Mostly(progress) || progress.nPressed == source.nSize) {
            return Stop::TakingOwn;
        }
        nStep = NextStep(nStep, msNow() - msStep);
        if (nFree < nKernelReserve * 2 + nStep) {
            // Less than lies between the mark at which the thread wakes and the reserve.
            nStep = std::min(nStep, std::max(nKernelReserve / 8, nMinStep));
            LetKernelCatchUp(proc, nKernelReserve);
        }
    }
    return AfterFailure(child);
}
