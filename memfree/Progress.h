#pragma once

#include <cstdint>

/// A bar on standard error while something lasts, only if that is a terminal. It is wiped out at the end.
class Progress
{
public:
    Progress();
    ~Progress();
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    void Show(std::uint64_t done, std::uint64_t all);

private:
    bool bTerminal = false;
    int lastPercent = -1;
};
