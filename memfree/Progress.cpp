#include "memfree/Progress.h"

#include "memfree/Files.h"

#include <algorithm>
#include <string>
#include <unistd.h>

Progress::Progress() : bTerminal(isatty(STDERR_FILENO) == 1) {}

Progress::~Progress()
{
    if (lastPercent >= 0) {
        WriteAll(STDERR_FILENO, "\r\033[K");
    }
}

void Progress::Show(std::uint64_t done, std::uint64_t all)
{
    const int percent = all ? static_cast<int>(std::min(done, all) * 100 / all) : 100;
    if (!bTerminal || percent == lastPercent) {
        return;
    }
    lastPercent = percent;
    const auto filled = static_cast<std::size_t>(percent) * 4 / 10;
    WriteAll(STDERR_FILENO, "\r[" + std::string(filled, '#') + std::string(40 - filled, '.') + "] " +
                                std::to_string(percent) + " %");
}
