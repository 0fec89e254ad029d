#include "compat/KernelCall.h"

#include <cerrno>
#include <unistd.h>

long KernelCall(long number, long first, long second, long third, long fourth)
{
    const long result = syscall(number, first, second, third, fourth);
    return result == -1 ? -errno : result;
}
