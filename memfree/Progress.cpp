#include "memfree/Progress.h"

#include "memfree/Files.h"

#include <algorithm>
#include <string>
#include <unistd.h>

Progress::Progress() : bTerminal(isatty(STDERR_FILENO) == 1) {}

Progress::~Progress()
{
    if (nLastPercent >= 0) {
        WriteAll(STDERR_FILENO, "\r\033[K");
    }
}

void Progress::Show(std::uint64_t nDone, std::uint64_t nAll)
{
    const int nPercent = nAll ? static_cast<int>(std::min(nDone, nAll) * 100 / nAll) : 100;
    if (!bTerminal || nPercent == nLastPercent) {
        return;
    }
    nLastPercent = nPercent;
    const auto nFilled = static_cast<std::size_t>(nPercent) * 4 / 10;
    WriteAll(STDERR_FILENO, "\r[" + std::string(nFilled, '#') + std::string(40 - nFilled, '.') + "] " +
                                std::to_string(nPercent) + " %");
}
