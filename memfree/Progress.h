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

    void Show(std::uint64_t nDone, std::uint64_t nAll);

private:
    bool bTerminal = false;
    int nLastPercent = -1;
};
