#include "memfree/KernelReclaim.h"

#include "memfree/ByteCount.h"
#include "memfree/Files.h"
#include "platform/linux/FindField.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

namespace {

constexpr const char *dropCachesFile = "/sys/vm/drop_caches";
constexpr const char *reclaimFile = "/memory.reclaim";

/// @return false if less was reclaimed than requested; errno has the reason
bool RequestReclaim(const std::string &group, std::uint64_t bytes, bool bWithoutSwap)
{
    const int descriptor = open((group + reclaimFile).c_str(), O_WRONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return false;
    }
    // Not WriteAll(): each write() is a request of its own.
    const std::string request = std::to_string(bytes) + (bWithoutSwap ? " swappiness=0" : "");
    const bool bReclaimed = write(descriptor, request.data(), request.size()) >= 0;
    const int error = errno;
    close(descriptor);
    errno = error;
    return bReclaimed;
}

} // namespace

bool MayDropCaches(const std::string &proc)
{
    // access() also refuses on a read-only file system, which most containers have here.
    return access((proc + dropCachesFile).c_str(), W_OK) == 0;
}

bool DropPageCache(const std::string &proc)
{
    const int descriptor = open((proc + dropCachesFile).c_str(), O_WRONLY | O_CLOEXEC);
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

bool CanReclaimWithoutSwap(const std::string &group)
{
    return RequestReclaim(group, 0, true);
}

Stop ReclaimCgroup(const std::string &group, bool bWithoutSwap, const std::function<Stop()> &check)
{
    constexpr std::uint64_t maxStep = 64 * bytesPerMiB;
    for (bool bFirst = true;; bFirst = false) {
        const std::uint64_t before = InactiveInCgroup(group);
        if (before < bytesPerMiB) {
            return Stop::NothingLeft;
        }
        // EAGAIN means that less was reclaimed than requested. Only memory.stat tells how much.
        if (!RequestReclaim(group, std::min(before, maxStep), bWithoutSwap) && errno != EAGAIN) {
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
