// vm_stat: how the machine's memory is divided, in the form that macOS prints.
#include "compat/Files.h"
#include "compat/MemoryProblemText.h"
#include "compat/MemoryReport.h"
#include "compat/MemoryTable.h"

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <ctime>
#include <getopt.h>
#include <string_view>
#include <unistd.h>

namespace {

enum ExitStatus
{
    Success = 0,
    NoFigures = 1,
    BadArguments = 2
};

constexpr int nLinesPerHeader = 20;
constexpr std::string_view help = "usage: vm_stat [[-c count] interval]\n"
                                  "Prints how the machine's memory is divided, in pages of 4096 bytes.\n"
                                  "\n"
                                  "  interval   print a line every so many seconds; after the first line,\n"
                                  "             counters show what was added since the line before\n"
                                  "  -c count   end after so many lines\n"
                                  "  -h, --help this text\n";

int Fail(const std::string &why, ExitStatus status)
{
    WriteAll(STDERR_FILENO, "vm_stat: " + why + "\n");
    return status;
}

/// Reads all of the text as a positive number; leaves number alone and is false for anything else.
template <typename Number> bool ParsePositive(std::string_view text, Number max, Number &number)
{
    Number parsed = {};
    const auto result = std::from_chars(text.data(), text.data() + text.size(), parsed);
    const bool bAll = result.ec == std::errc() && result.ptr == text.data() + text.size();
    if (!bAll || !(parsed > 0 && parsed <= max)) {
        return false;
    }
    number = parsed;
    return true;
}

int Print(double nSecondsInterval, long nLines)
{
    const auto kernelPageBytes = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
    const bool bTable = nSecondsInterval > 0;
    MemoryFigures before = {};
    timespec next = {};
    clock_gettime(CLOCK_MONOTONIC, &next);

    for (long nLine = 0; nLine < nLines || nLines == 0; ++nLine) {
        if (nLine > 0) {
            // Against the clock, not from now: the lines do not drift by the time that they take.
            const auto nNanoseconds = static_cast<long long>(nSecondsInterval * 1e9) + next.tv_nsec;
            next.tv_sec += static_cast<time_t>(nNanoseconds / 1'000'000'000);
            next.tv_nsec = static_cast<long>(nNanoseconds % 1'000'000'000);
            while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &next, nullptr) == EINTR) {
            }
        }
        MemoryFigures now = {};
        if (const MemoryProblem problem = ReadMemoryFigures("/", kernelPageBytes, now)) {
            return Fail(MemoryProblemText(problem), NoFigures);
        }
        ReportBuffer buffer;
        std::string text;
        if (bTable && nLine % nLinesPerHeader == 0) {
            text = MemoryTableHeader();
        }
        text += bTable ? MemoryTableLine(now, before) : std::string(MemoryReport(now, buffer));
        if (!WriteAll(STDOUT_FILENO, text)) {
            return Fail("cannot write: " + LastError(), NoFigures);
        }
        before = now;
    }
    return Success;
}

} // namespace

int main(int argc, char *argv[])
{
    char name[] = "vm_stat";
    argv[0] = name; // what getopt's messages begin with
    const option longOptions[] = {{"help", no_argument, nullptr, 'h'}, {}};
    long nLines = 1;
    bool bCounted = false;
    for (int letter = 0; (letter = getopt_long(argc, argv, "c:h", longOptions, nullptr)) != -1;) {
        switch (letter) {
        case 'c':
            if (!ParsePositive(optarg, 1'000'000'000L, nLines)) {
                return Fail(std::string("not a count: \"") + optarg + "\"", BadArguments);
            }
            bCounted = true;
            break;
        case 'h':
            return WriteAll(STDOUT_FILENO, std::string(help)) ? Success : NoFigures;
        default:
            return BadArguments;
        }
    }

    if (optind == argc) {
        return bCounted ? Fail("-c needs an interval", BadArguments) : Print(0, 1);
    }
    double nSecondsInterval = 0;
    if (!ParsePositive(argv[optind], 1e6, nSecondsInterval)) {
        return Fail(std::string("not an interval in seconds: \"") + argv[optind] + "\"", BadArguments);
    }
    if (optind + 1 < argc) {
        return Fail(std::string("one argument too many: \"") + argv[optind + 1] + "\"", BadArguments);
    }
    return Print(nSecondsInterval, bCounted ? nLines : 0);
}
