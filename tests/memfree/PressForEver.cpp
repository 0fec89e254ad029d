// press_for_ever PROC DIRECTORY: presses with 64 MiB again and again until it is killed, with a file in the
// directory or, if that is empty, with anonymous memory.
#include "memfree/ByteCount.h"
#include "memfree/MemoryState.h"
#include "memfree/Pressure.h"

int main(int argc, char *argv[])
{
    if (argc != 3) {
        return 2;
    }
    const std::string proc = argv[1];
    MemoryState before;
    std::string error;
    if (!ReadMemoryState(proc, before, error)) {
        return 2;
    }
    PressureRequest request;
    request.directory = argv[2];
    request.nBound = 64 * nBytesPerMiB;
    request.before = &before;
    request.onProgress = [](const PressureProgress &) {};
    while (true) {
        request.msStarted = msNow();
        if (Press(proc, proc, request) != Stop::Bound) {
            return 1;
        }
    }
}
