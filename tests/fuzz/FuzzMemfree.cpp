// What memfree reads of the kernel: /proc/meminfo, pressure, cgroup paths.

#include "memfree/MemoryState.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    MemoryState state;
    if (ParseMeminfo(text, state) && (state.free > state.total || state.inactiveFile > state.total)) {
        std::abort();
    }
    (void)ParseStalled(text);
    for (const char *controller : {"", "memory"}) {
        if (FindCgroupPath(text, controller).size() > size) {
            std::abort();
        }
    }
    return 0;
}
