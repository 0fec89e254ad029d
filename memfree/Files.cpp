#include "memfree/Files.h"

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

bool ReadFile(const std::string &path, std::string &content)
{
    content.clear();
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return false;
    }
    // All of /proc/meminfo fits into one read(), so its numbers belong to one moment.
    char chunk[8192];
    ssize_t count = 0;
    while ((count = read(descriptor, chunk, sizeof chunk)) > 0) {
        content.append(chunk, static_cast<std::size_t>(count));
    }
    const int error = errno;
    close(descriptor);
    errno = error;
    return count == 0;
}

bool WriteAll(int descriptor, std::string_view text)
{
    std::size_t written = 0;
    while (written < text.size()) {
        const ssize_t count = write(descriptor, text.data() + written, text.size() - written);
        if (count < 0) {
            return false;
        }
        written += static_cast<std::size_t>(count);
    }
    return true;
}

bool IsReaderGone(int descriptor)
{
    pollfd output = {descriptor, 0, 0};
    return poll(&output, 1, 0) == 1 && (output.revents & (POLLERR | POLLHUP)) != 0;
}
