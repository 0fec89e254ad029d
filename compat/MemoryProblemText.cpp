#include "compat/MemoryProblemText.h"

#include <cstring>

std::string MemoryProblemText(const MemoryProblem &problem)
{
    switch (problem.kind) {
    case MemoryProblem::Unreadable:
        return std::string("cannot read /proc/meminfo: ") + std::strerror(static_cast<int>(problem.detail));
    case MemoryProblem::NoTotal:
        return "/proc/meminfo does not say MemTotal";
    case MemoryProblem::NoFree:
        return "/proc/meminfo does not say MemFree";
    case MemoryProblem::SenselessTotal:
        return "/proc/meminfo gives a senseless MemTotal: " + std::to_string(problem.detail) + " kB";
    case MemoryProblem::None:
        break;
    }
    return {};
}
