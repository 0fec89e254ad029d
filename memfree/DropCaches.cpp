#include "memfree/DropCaches.h"

#include "memfree/Files.h"

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::string DropCachesPath(const std::string &proc)
{
    return proc + "/sys/vm/drop_caches";
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
