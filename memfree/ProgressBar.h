#pragma once

#include "memfree/Files.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <unistd.h>

/// For a terminal.
constexpr const char *eraseLine = "\r\033[K";

/// A progress bar on standard error. Shown only on a terminal, erased by the destructor.
class ProgressBar
{
public:
    ProgressBar() = default;
    ~ProgressBar()
    {
        if (lastPercent >= 0) {
            WriteAll(STDERR_FILENO, eraseLine);
        }
    }
    ProgressBar(const ProgressBar &) = delete;
    ProgressBar &operator=(const ProgressBar &) = delete;

    void Show(std::uint64_t done, std::uint64_t all)
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

private:
    const bool bTerminal = isatty(STDERR_FILENO) == 1;
    int lastPercent = -1;
};
