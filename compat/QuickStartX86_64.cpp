// Where osascript begins. Nearly every run is asked for one memory report, and what it costs is the start of
// the C library: it looks closely at the processor (CPUID), which a virtual machine's host has to answer each
// time. So that one request is met before the C library begins; all else goes on to its start as if nothing
// had been.
#include "compat/KernelCall.h"
#include "compat/MemoryReport.h"
#include "compat/ReadAhead.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr std::string_view command = "vm_stat";
constexpr std::string_view request = "do shell script \"vm_stat\"";
constexpr std::uint64_t kernelPageBytes = 4096;

void ReadInput()
{
    long nNow = 1;
    while (nNow > 0 && readAhead.nBytes < readAhead.bytes.size()) {
        nNow = KernelCall(SYS_read, STDIN_FILENO, KernelArgument(readAhead.bytes.data() + readAhead.nBytes),
                          static_cast<long>(readAhead.bytes.size() - readAhead.nBytes));
        readAhead.nBytes += static_cast<std::size_t>(std::max(nNow, 0L));
    }
    readAhead.bEnd = nNow == 0;
}

/// Whether anything of the command's name in PATH might be run. What a doubtful case is, is decided with the
/// library.
bool MayBeInstalled(const char *const *environment)
{
    constexpr std::string_view variable = "PATH=";
    while (*environment != nullptr && !std::string_view(*environment).starts_with(variable)) {
        ++environment;
    }
    if (*environment == nullptr) {
        return true;
    }
    std::string_view path = std::string_view(*environment).substr(variable.size());
    if (path.empty() || path.ends_with(':')) {
        return true;
    }
    while (!path.empty()) {
        const std::string_view directory = path.substr(0, path.find(':'));
        std::array<char, 512> file;
        if (directory.empty() || directory.size() + command.size() + 2 > file.size()) {
            return true;
        }
        char *end = std::ranges::copy(directory, file.data()).out;
        *end++ = '/';
        *std::ranges::copy(command, end).out = '\0';
        if (KernelCall(SYS_faccessat, AT_FDCWD, KernelArgument(file.data()), X_OK) == 0) {
            return true;
        }
        path.remove_prefix(std::min(directory.size() + 1, path.size()));
    }
    return false;
}

} // namespace

/// @param stack  what the kernel left there: the count of arguments, the arguments, a null pointer, the
/// environment
extern "C" void QuickStart(const long *stack)
{
    const long nArguments = *stack;
    const auto *const arguments = reinterpret_cast<const char *const *>(stack + 1);
    if (nArguments != 3 || std::string_view(arguments[1]) != "-l" ||
        std::string_view(arguments[2]) != "AppleScript") {
        return;
    }
    ReadInput();
    if (!readAhead.bEnd || std::string_view(readAhead.bytes.data(), readAhead.nBytes) != request ||
        MayBeInstalled(arguments + nArguments + 1)) {
        return;
    }
    MemoryFigures figures;
    if (ReadMemoryFigures("/", kernelPageBytes, figures)) {
        return;
    }
    ReportBuffer buffer;
    const std::string_view report = MemoryReport(figures, buffer);
    // The lines as "do shell script" returns them; osascript ends its result with a line feed.
    std::replace(buffer.data(), buffer.data() + report.size() - 1, '\n', '\r');
    if (KernelCall(SYS_write, STDOUT_FILENO, KernelArgument(report.data()),
                   static_cast<long>(report.size())) == static_cast<long>(report.size())) {
        KernelCall(SYS_exit_group, 0);
    }
}

asm(R"(
    .globl osascript_start
    .type osascript_start, @function
osascript_start:
    mov %rsp, %rdi
    call QuickStart
    xor %edx, %edx
    jmp _start
)");
