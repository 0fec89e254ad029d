#include "memfree/TimedChild.h"

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

bool SucceedsWithin(int ms, const std::function<bool()> &work)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        return false;
    }
    const pid_t child = fork();
    if (child == 0) {
        // The child can outlive this process in an uninterruptible wait. It must not keep the caller's pipes
        // open meanwhile.
        const auto writeEnd = static_cast<unsigned>(ends[1]);
        close_range(0, writeEnd - 1, 0);
        close_range(writeEnd + 1, ~0U, 0);
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        _exit(work() ? 0 : 1);
    }
    close(ends[1]);
    // The pipe is closed when the child exits.
    pollfd childExit = {ends[0], POLLIN, 0};
    const bool bInTime = child > 0 && poll(&childExit, 1, ms) == 1;
    close(ends[0]);
    if (child < 0) {
        return false;
    }
    if (!bInTime) {
        kill(child, SIGKILL);
    }
    int status = 0;
    return waitpid(child, &status, bInTime ? 0 : WNOHANG) == child && WIFEXITED(status) &&
           WEXITSTATUS(status) == 0;
}
