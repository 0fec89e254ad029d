#include "memfree/KernelReclaim.h"

#include "memfree/ByteCount.h"
#include "memfree/Files.h"
#include "memfree/MemoryState.h"
#include "platform/linux/FindField.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::string DropCachesPath(const std::string &proc)
{
    return proc + "/sys/vm/drop_caches";
}

constexpr const char *reclaimFile = "/memory.reclaim";

/// One write is one request. @return false if less was reclaimed than was asked for; errno says why
bool Request(const std::string &group, std::uint64_t bytes, bool bWithoutSwap)
{
    const int descriptor = open((group + reclaimFile).c_str(), O_WRONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return false;
    }
    const std::string request = std::to_string(bytes) + (bWithoutSwap ? " swappiness=0" : "");
    const bool bDone = write(descriptor, request.data(), request.size()) >= 0;
    const int error = errno;
    close(descriptor);
    errno = error;
    return bDone;
}

} // namespace

bool MayDropCaches(const std::string &proc)
{
    // Says no too where the file system is read-only, as in most containers.
    return access(DropCachesPath(proc).c_str(), W_OK) == 0;
}

bool SyncWithin(int ms)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        return false;
    }
    const pid_t child = fork();
    if (child == 0) {
        // It may outlive us in an uninterruptible wait: it must not hold anyone's pipe open then.
        const auto last = static_cast<unsigned>(ends[1]);
        close_range(0, last - 1, 0);
        close_range(last + 1, ~0U, 0);
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        sync();
        _exit(0);
    }
    close(ends[1]);
    pollfd end = {ends[0], POLLIN, 0};
    // The pipe ends when the child does.
    const bool bSynced = child > 0 && poll(&end, 1, ms) == 1;
    close(ends[0]);
    if (child > 0) {
        kill(child, SIGKILL);
        waitpid(child, nullptr, bSynced ? 0 : WNOHANG);
    }
    return bSynced;
}

bool DropPageCache(const std::string &proc)
{
    const int descriptor = open(DropCachesPath(proc).c_str(), O_WRONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return false;
    }
    const bool bDropped = WriteAll(descriptor, "1\n");
    close(descriptor);
    return bDropped;
}

std::vector<std::string> FindReclaimableCgroups(const std::string &cgroup, uid_t user)
{
    const std::string id = std::to_string(user);
    const std::string manager = cgroup + "/user.slice/user-" + id + ".slice/user@" + id + ".service";
    const auto mayReclaim = [](const std::string &group) {
        return access((group + reclaimFile).c_str(), W_OK) == 0;
    };
    if (mayReclaim(manager)) {
        return {manager};
    }
    std::vector<std::string> groups;
    const std::unique_ptr<DIR, int (*)(DIR *)> directory(opendir(manager.c_str()), closedir);
    while (const dirent *entry = directory ? readdir(directory.get()) : nullptr) {
        if (entry->d_name[0] != '.' && mayReclaim(manager + "/" + entry->d_name)) {
            groups.push_back(manager + "/" + entry->d_name);
        }
    }
    std::sort(groups.begin(), groups.end());
    return groups;
}

std::uint64_t InactiveInCgroup(const std::string &group)
{
    std::string report;
    return ReadFile(group + "/memory.stat", report) ? FindField(report, "inactive_file").value_or(0) : 0;
}

bool ReclaimsWithoutSwap(const std::string &group)
{
    return Request(group, 0, true);
}

Stop ReclaimCgroup(const std::string &group, bool bWithoutSwap, const std::function<Stop()> &check)
{
    constexpr std::uint64_t step = 64 * bytesPerMiB;
    for (bool bFirst = true;; bFirst = false) {
        const std::uint64_t before = InactiveInCgroup(group);
        if (before < bytesPerMiB) {
            return Stop::NothingLeft;
        }
        // EAGAIN: less than that was to be had, which is known only by looking again.
        if (!Request(group, std::min(before, step), bWithoutSwap) && errno != EAGAIN) {
            return bFirst ? Stop::Failed : Stop::NothingLeft;
        }
        if (const Stop stop = check(); stop != Stop::None) {
            return stop;
        }
        if (InactiveInCgroup(group) + bytesPerMiB > before) {
            return Stop::NothingLeft;
        }
    }
}
