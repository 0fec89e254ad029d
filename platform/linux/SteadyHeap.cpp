#include "platform/SteadyHeap.h"

#include <malloc.h>

void KeepHeapSteady()
{
    // glibc's default, but fixed. Otherwise the first freed image of a window raises it: images then come
    // from the heap, and the gaps that they leave grow by 0.2 MiB in a day with 50 changes of style.
    mallopt(M_MMAP_THRESHOLD, 128 << 10);
    // Otherwise Qt's threads and those of the freeing runs have five more heaps, each with gaps of its own.
    mallopt(M_ARENA_MAX, 1);
}
