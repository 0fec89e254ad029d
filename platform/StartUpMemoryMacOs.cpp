#include "platform/StartUpMemory.h"

// Nothing that is known to help here.
void ReleaseStartUpCode() {}
