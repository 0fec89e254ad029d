#include "compat/Files.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

bool ReadFile(const std::string &path, std::string &content)
{
    constexpr std::size_t nMaxBytes = std::size_t(1) << 20;
    // O_NONBLOCK: a pipe of that name would block the open.
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        return false;
    }
    struct stat status = {};
    bool bRead = fstat(descriptor, &status) == 0;
    if (bRead && !S_ISREG(status.st_mode)) {
        errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
        bRead = false;
    }
    bRead = bRead && ReadAll(descriptor, nMaxBytes, content);
    const int readError = errno;
    close(descriptor);
    errno = readError;
    return bRead;
}

bool ReadAll(int descriptor, std::size_t nMaxBytes, std::string &content)
{
    // All of /proc/meminfo fits in one read, so it is as of one moment. On the stack, since each page of heap
    // that a short-lived program touches costs it a fault.
    char chunk[8192];
    content.clear();
    while (content.size() < nMaxBytes) {
        const ssize_t nNow = read(descriptor, chunk, std::min(sizeof chunk, nMaxBytes - content.size()));
        if (nNow < 0 && errno == EINTR) {
            continue;
        }
        if (nNow <= 0) {
            return nNow == 0;
        }
        content.append(chunk, static_cast<std::size_t>(nNow));
    }
    return true;
}

bool WriteAll(int descriptor, const std::string &text)
{
    std::size_t nWritten = 0;
    while (nWritten < text.size()) {
        const ssize_t nNow = write(descriptor, text.data() + nWritten, text.size() - nWritten);
        if (nNow < 0 && errno != EINTR) {
            return false;
        }
        nWritten += static_cast<std::size_t>(std::max<ssize_t>(nNow, 0));
    }
    return true;
}

std::string LastError()
{
    return std::strerror(errno);
}
