#pragma once

/// One of the kernel's own calls (SYS_openat and so on), without the C library where that is possible.
/// @return what the kernel returned; a failure is the negative error number
long KernelCall(long number, long first = 0, long second = 0, long third = 0, long fourth = 0);

/// A pointer as the calls take it.
inline long KernelArgument(const void *pointer)
{
    return reinterpret_cast<long>(pointer);
}
