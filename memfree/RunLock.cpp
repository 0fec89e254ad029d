#include "memfree/RunLock.h"

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

bool BecomeOnlyRun()
{
    // Shared memory is there for every user, with and without a session, and never hangs.
    const std::string name = "/kelvo-memfree-" + std::to_string(getuid());
    // Read-only: without a standard output this descriptor is number 1, and gets the result's line.
    // The name can be taken by another user, who must not be able to block this one, not even with a lease.
    const int descriptor = shm_open(name.c_str(), O_RDONLY | O_CREAT | O_NONBLOCK, 0600);
    struct stat status = {};
    if (descriptor < 0 || fstat(descriptor, &status) != 0) {
        return true;
    }
    if (status.st_uid != getuid() || status.st_mode != (S_IFREG | 0600)) {
        return true;
    }
    // The kernel releases the lock with the last copy of the descriptor, however the processes end.
    return flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}
