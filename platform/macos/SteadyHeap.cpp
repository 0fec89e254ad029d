#include "platform/SteadyHeap.h"

void KeepHeapSteady()
{
    // Nothing is known to grow there.
}
