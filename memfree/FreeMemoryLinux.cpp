#include "memfree/FreeMemory.h"

#include "memfree/ByteCount.h"
#include "memfree/Files.h"
#include "memfree/FreeingPlan.h"
#include "memfree/KernelReclaim.h"
#include "memfree/Pressure.h"
#include "memfree/PressureFile.h"
#include "memfree/ProgressBar.h"
#include "memfree/RunLock.h"
#include "memfree/TimedChild.h"

#include <algorithm>
#include <cstdio>
#include <unistd.h>

namespace {

const std::string proc = "/proc";
const std::string cgroup = "/sys/fs/cgroup";

/// The run goes on without the dirty pages that are not written by then.
constexpr int msSyncTimeout = 5000;

/// Reads everything that changes during a run.
bool UpdateSituation(Situation &situation, std::string &error)
{
    if (!ReadMemoryState(proc, situation.memory, error)) {
        return false;
    }
    situation.cgroup = ReadCgroupHeadroom(proc, cgroup);
    situation.bMayDropCaches = MayDropCaches(proc);
    situation.reclaimableCgroups = FindReclaimableCgroups(cgroup, getuid());
    situation.inactiveInCgroups = 0;
    for (const std::string &group : situation.reclaimableCgroups) {
        situation.inactiveInCgroups += InactiveInCgroup(group);
    }
    situation.bCgroupReclaimWithoutSwap = !situation.reclaimableCgroups.empty() &&
                                          situation.memory.swapFree > 0 &&
                                          CanReclaimWithoutSwap(situation.reclaimableCgroups.front());
    return true;
}

bool ReadSituation(std::uint64_t asked, Situation &situation, std::string &error)
{
    situation.asked = asked;
    if (!UpdateSituation(situation, error)) {
        return false;
    }
    // More than the bound, which limits the resident pages: some are evicted meanwhile.
    situation.pressureFile = FindPressureFile(PressureDirectories(), PressureBound(situation) * 4);
    return true;
}

bool NeedsSync(const MemoryState &memory)
{
    return memory.dirty >= MinWorthFreeing(memory.total);
}

/// Whether the next method may free more. Not after a harm, and not when nothing inactive is left.
bool ShouldTryNext(Stop stop, Method method)
{
    return stop == Stop::Failed || stop == Stop::EvictingOwn ||
           (stop == Stop::NothingLeft && method == Method::CgroupReclaim);
}

class FreeingRun
{
public:
    FreeingRun(const Situation &start, std::uint64_t msStart)
        : msStarted(msStart), before(start.memory), situation(start)
    {
    }

    Outcome Execute()
    {
        Decision decision = Decide(situation, Method::None);
        if (decision.method == Method::None) {
            return {false, "nothing to do: " + decision.reason};
        }
        if (NeedsSync(before)) {
            SucceedsWithin(msSyncTimeout, [] {
                sync();
                return true;
            });
        }
        std::string used;
        std::string refused;
        Stop stop = Stop::None;
        std::string error;
        while (decision.method != Method::None) {
            stop = Apply(decision);
            std::string &names = stop == Stop::Failed ? refused : used;
            names += (names.empty() ? "" : " and ") + std::string(MethodName(decision.method));
            if (!UpdateSituation(situation, error)) {
                return {true, error};
            }
            if (!ShouldTryNext(stop, decision.method)) {
                break;
            }
            decision = Decide(situation, decision.method);
        }
        if (used.empty()) {
            return {true, "could not free memory: the system refused " + refused};
        }
        return Summary(used, stop);
    }

private:
    Stop Apply(const Decision &decision)
    {
        switch (decision.method) {
        case Method::DropCaches:
            return DropPageCache(proc) ? Stop::NothingLeft : Stop::Failed;
        case Method::CgroupReclaim:
            return ReclaimCgroups();
        case Method::PageCachePressure:
        case Method::AnonymousPressure:
            return PressWith(decision);
        case Method::None:
            break;
        }
        return Stop::Failed;
    }

    Stop ReclaimCgroups()
    {
        const auto check = [this] {
            if (IsReaderGone(STDOUT_FILENO)) {
                return Stop::ReaderGone;
            }
            MemoryState now;
            std::string error;
            return ReadMemoryState(proc, now, error) ? CheckHarm(before, now, msNow() - msStarted)
                                                     : Stop::Failed;
        };
        Stop stop = Stop::Failed;
        for (const std::string &group : situation.reclaimableCgroups) {
            const Stop last = ReclaimCgroup(group, situation.bCgroupReclaimWithoutSwap, check);
            if (last != Stop::Failed) {
                stop = last;
            }
            if (Describe(last) && last != Stop::Failed) {
                break;
            }
        }
        return stop;
    }

    Stop PressWith(const Decision &decision)
    {
        ProgressBar bar;
        PressureRequest request;
        if (decision.method == Method::PageCachePressure) {
            request.file = situation.pressureFile;
        }
        request.bound = decision.bound;
        request.before = &before;
        request.msStarted = msStarted;
        request.pressureStart = &situation.memory;
        request.onProgress = [&bar](const PressureProgress &now) { bar.Show(now.resident, now.bound); };
        return ApplyPressure(proc, cgroup, request);
    }

    Outcome Summary(const std::string &used, Stop stop) const
    {
        const std::uint64_t free = situation.memory.free;
        const std::uint64_t freed = free - std::min(before.free, free);
        char seconds[40];
        std::snprintf(seconds, sizeof seconds, "%.2f s", static_cast<double>(msNow() - msStarted) / 1000);
        const char *why = Describe(stop);
        return {false, "freed " + FormatByteCount(freed) + " by " + used + " in " + seconds +
                           (why ? std::string(" (stopped: ") + why + ")" : std::string())};
    }

    const std::uint64_t msStarted;
    const MemoryState before;
    Situation situation;
};

} // namespace

Outcome FreeMemory(std::uint64_t asked)
{
    if (!BecomeOnlyRun()) {
        return {false, "nothing to do: another run is in progress"};
    }
    const std::uint64_t msStarted = msNow();
    Situation situation;
    std::string error;
    return ReadSituation(asked, situation, error) ? FreeingRun(situation, msStarted).Execute()
                                                  : Outcome{true, error};
}

Outcome DryRun(std::uint64_t asked)
{
    Situation situation;
    std::string error;
    if (!ReadSituation(asked, situation, error)) {
        return {true, error};
    }
    const MemoryState &memory = situation.memory;
    const Decision decision = Decide(situation, Method::None);
    std::string text = FormatByteCount(memory.inactiveFile) + " inactive, " + FormatByteCount(memory.free) +
                       " free, " + FormatByteCount(memory.available) + " available of " +
                       FormatByteCount(memory.total) + "\n";
    if (decision.method == Method::None) {
        return {false, text + "would do nothing: " + decision.reason};
    }
    if (NeedsSync(memory)) {
        text += "would first have " + FormatByteCount(memory.dirty) + " of dirty pages written to disk\n";
    }
    text += std::string("would try ") + MethodName(decision.method) + ": " + decision.reason;
    if (decision.bound > 0) {
        text += "\nwould apply at most " + FormatByteCount(decision.bound) + " of pressure, and keep " +
                FormatByteCount(MemoryReserve(memory.total)) + " available";
    }
    return {false, text};
}
