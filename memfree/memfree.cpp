// memfree: frees inactive memory, as much as is possible without harm to other programs.
#include "memfree/Files.h"
#include "memfree/FreeMemory.h"
#include "memfree/ProgressBar.h"
#include "memfree/StoppingRule.h"

#include <charconv>
#include <csignal>
#include <optional>
#include <string_view>
#include <unistd.h>

namespace {

enum ExitStatus
{
    Done = 0,
    CouldNot = 1,
    BadArguments = 2
};

constexpr std::string_view help =
    "usage: memfree [--dry-run] BYTES\n"
    "Frees inactive memory (file cache that was not used recently) until BYTES are free\n"
    "or until it would harm other programs.\n"
    "BYTES is a decimal upper bound: the memory free now plus the memory to be freed.\n"
    "\n"
    "  -n, --dry-run  say what would be done and why, and do nothing\n"
    "  -h, --help     show this text\n"
    "\n"
    "On Linux a user can have one run at a time; a second one says so and ends.\n"
    "The last line says how much was freed, by which method and in what time.\n"
    "Exit status: 0 done or nothing to do, 1 could not, 2 bad usage.\n";

/// Parses the argument: decimal digits only, more than zero, within 63 bits.
std::optional<std::uint64_t> ParseByteCount(std::string_view text)
{
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number <= 0) {
        return std::nullopt;
    }
    return static_cast<std::uint64_t>(number);
}

int Fail(const std::string &why, ExitStatus status)
{
    WriteAll(STDERR_FILENO, "memfree: " + why + "\n");
    return status;
}

/// Runs as a signal handler, so it uses only calls that are safe there.
void GiveUp(int /*signal*/)
{
    if (isatty(STDERR_FILENO) == 1) {
        WriteAll(STDERR_FILENO, eraseLine);
    }
    WriteAll(STDERR_FILENO, "memfree: gave up, because it took too long\n");
    _exit(CouldNot);
}

int Report(const Outcome &outcome)
{
    if (outcome.bFailed) {
        return Fail(outcome.text, CouldNot);
    }
    // Not an error if nobody reads it: the memory is free all the same.
    WriteAll(STDOUT_FILENO, outcome.text + "\n");
    return Done;
}

} // namespace

int main(int argc, char *argv[])
{
    // SIGTERM and the like keep their default action: processes hold all the memory, and their end releases
    // it.
    std::signal(SIGPIPE, SIG_IGN);
    // Beyond a file size limit ftruncate() then fails with an error.
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGALRM, GiveUp);
    alarm(static_cast<unsigned>(msDeadline / 1000 + 5));

    bool bDryRun = false;
    const char *count = nullptr;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "-h" || argument == "--help") {
            WriteAll(STDOUT_FILENO, help);
            return Done;
        }
        if (argument == "-n" || argument == "--dry-run") {
            bDryRun = true;
        } else if (argument.starts_with("-") && argument.find_first_of("0123456789") != 1) {
            return Fail("no such option: \"" + std::string(argument) + "\"", BadArguments);
        } else if (count) {
            return Fail("one byte count only, not also \"" + std::string(argument) + "\"", BadArguments);
        } else {
            count = argv[i];
        }
    }
    if (!count) {
        return Fail("a byte count is needed; see memfree --help", BadArguments);
    }
    const auto bytes = ParseByteCount(count);
    if (!bytes) {
        return Fail("not a byte count: \"" + std::string(count) + "\"", BadArguments);
    }
    return Report(bDryRun ? DryRun(*bytes) : FreeMemory(*bytes));
}
