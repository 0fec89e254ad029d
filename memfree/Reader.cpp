#include "memfree/Reader.h"

#include <poll.h>
#include <unistd.h>

bool IsReaderGone()
{
    pollfd output = {STDOUT_FILENO, 0, 0};
    return poll(&output, 1, 0) == 1 && (output.revents & (POLLERR | POLLHUP)) != 0;
}
