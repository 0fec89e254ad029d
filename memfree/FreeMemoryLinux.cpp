#include "memfree/FreeMemory.h"

#include "memfree/ByteCount.h"
#include "memfree/Files.h"
#include "memfree/FreeingPlan.h"
#include "memfree/KernelReclaim.h"
#include "memfree/Pressure.h"
#include "memfree/PressureFile.h"
#include "memfree/ProgressBar.h"

#include <cstdio>
#include <unistd.h>

namespace {

const std::string proc = "/proc";
const std::string cgroup = "/sys/fs/cgroup";

/// How long the kernel may take to write dirty pages before we go on without them.
constexpr int msSync = 5000;

struct Place
{
    Situation situation;
    std::vector<std::string> groups;
};

bool Look(std::uint64_t bytes, Place &place, std::string &error)
{
    Situation &situation = place.situation;
    situation.asked = bytes;
    if (!ReadMemoryState(proc, situation.memory, error)) {
        return false;
    }
    situation.room = ReadCgroupRoom(proc, cgroup);
    situation.bMayDropCaches = MayDropCaches(proc);
    place.groups = FindReclaimableCgroups(cgroup, getuid());
    for (const std::string &group : place.groups) {
        situation.inactiveInCgroups += InactiveInCgroup(group);
    }
    situation.bCgroupsWithoutSwap =
        !place.groups.empty() && situation.memory.swapFree > 0 && ReclaimsWithoutSwap(place.groups.front());
    situation.pressureDirectory = FindPressureDirectory(PressureDirectories());
    return true;
}

bool NeedsSync(const MemoryState &memory)
{
    return memory.dirty >= WorthFreeing(memory.total);
}

/// Whether the next way is to be tried: not to add to a harm, and not where there is no more to be had.
bool LeavesMore(Stop stop, Means means)
{
    return stop == Stop::Failed || stop == Stop::TakingOwn ||
           (stop == Stop::NothingLeft && means == Means::CgroupReclaim);
}

class Run
{
public:
    Run(std::uint64_t bytes, const Place &first) : asked(bytes), before(first.situation.memory), place(first)
    {
    }

    Outcome Finish()
    {
        Decision decision = Decide(place.situation, Means::Nothing);
        if (decision.means == Means::Nothing) {
            return {false, "nothing to do: " + decision.reason};
        }
        if (NeedsSync(before)) {
            SyncWithin(msSync);
        }
        std::string used;
        std::string refused;
        Stop stop = Stop::None;
        std::string error;
        while (decision.means != Means::Nothing) {
            stop = Try(decision);
            std::string &names = stop == Stop::Failed ? refused : used;
            names += (names.empty() ? "" : " and ") + std::string(Name(decision.means));
            Place now;
            if (!Look(asked, now, error)) {
                return {true, error};
            }
            place = now;
            if (!LeavesMore(stop, decision.means)) {
                break;
            }
            decision = Decide(place.situation, decision.means);
        }
        if (used.empty()) {
            return {true, "could not free memory: the system refused " + refused};
        }
        return Report(used, stop);
    }

private:
    Stop Try(const Decision &decision)
    {
        switch (decision.means) {
        case Means::DropCaches:
            return DropPageCache(proc) ? Stop::NothingLeft : Stop::Failed;
        case Means::CgroupReclaim:
            return ReclaimCgroups();
        case Means::PageCachePressure:
        case Means::AnonymousPressure:
            return PressWith(decision);
        case Means::Nothing:
            break;
        }
        return Stop::Failed;
    }

    Stop ReclaimCgroups()
    {
        const auto check = [this] {
            if (IsReaderGone(STDOUT_FILENO)) {
                return Stop::NobodyWaits;
            }
            MemoryState now;
            std::string error;
            return ReadMemoryState(proc, now, error) ? CheckHarm(before, now, msNow() - msStarted)
                                                     : Stop::Failed;
        };
        Stop stop = Stop::Failed;
        for (const std::string &group : place.groups) {
            const Stop last = ReclaimCgroup(group, place.situation.bCgroupsWithoutSwap, check);
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
        if (decision.means == Means::PageCachePressure) {
            request.directory = place.situation.pressureDirectory;
        }
        request.bound = decision.bound;
        request.before = &before;
        request.first = &place.situation.memory;
        request.msStarted = msStarted;
        request.onProgress = [&bar](const PressureProgress &now) { bar.Show(now.resident, now.bound); };
        return Press(proc, cgroup, request);
    }

    Outcome Report(const std::string &used, Stop stop) const
    {
        const std::uint64_t free = place.situation.memory.free;
        const std::uint64_t freed = free - std::min(before.free, free);
        char seconds[40];
        std::snprintf(seconds, sizeof seconds, "%.2f s", static_cast<double>(msNow() - msStarted) / 1000);
        const char *why = Describe(stop);
        return {false, "freed " + FormatByteCount(freed) + " by " + used + " in " + seconds +
                           (why ? std::string(" (stopped: ") + why + ")" : std::string())};
    }

    const std::uint64_t msStarted = msNow();
    const std::uint64_t asked;
    const MemoryState before;
    Place place;
};

} // namespace

Outcome FreeMemory(std::uint64_t bytes)
{
    Place place;
    std::string error;
    return Look(bytes, place, error) ? Run(bytes, place).Finish() : Outcome{true, error};
}

Outcome PlanMemory(std::uint64_t bytes)
{
    Place place;
    std::string error;
    if (!Look(bytes, place, error)) {
        return {true, error};
    }
    const MemoryState &memory = place.situation.memory;
    const Decision decision = Decide(place.situation, Means::Nothing);
    std::string text = FormatByteCount(memory.inactiveFile) + " inactive, " + FormatByteCount(memory.free) +
                       " free, " + FormatByteCount(memory.available) + " available of " +
                       FormatByteCount(memory.total) + "\n";
    if (decision.means == Means::Nothing) {
        return {false, text + "would do nothing: " + decision.reason};
    }
    if (NeedsSync(memory)) {
        text += "would have " + FormatByteCount(memory.dirty) + " of dirty pages written first\n";
    }
    text += std::string("would try ") + Name(decision.means) + ": " + decision.reason;
    if (decision.bound > 0) {
        text += "\nwould press with " + FormatByteCount(decision.bound) + " at most, and keep " +
                FormatByteCount(MemoryReserve(memory.total)) + " available";
    }
    return {false, text};
}
