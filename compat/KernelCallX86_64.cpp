#include "compat/KernelCall.h"

long KernelCall(long number, long first, long second, long third, long fourth)
{
    register long r10 asm("r10") = fourth;
    long result = 0;
    asm volatile("syscall"
                 : "=a"(result)
                 : "a"(number), "D"(first), "S"(second), "d"(third), "r"(r10)
                 : "rcx", "r11", "memory");
    return result;
}
