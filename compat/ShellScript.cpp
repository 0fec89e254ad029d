#include "compat/ShellScript.h"

#include "compat/MemoryProblemText.h"
#include "compat/MemoryReport.h"
#include "compat/Programs.h"
#include "compat/RunShell.h"

#include <string_view>
#include <unistd.h>

namespace {

void DropLast(std::string &text, char c)
{
    if (text.ends_with(c)) {
        text.pop_back();
    }
}

void AlterLineEndings(std::string &text)
{
    std::size_t nKept = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\n' && at > 0 && text[at - 1] == '\r') {
            continue;
        }
        text[nKept++] = text[at] == '\n' ? '\r' : text[at];
    }
    text.resize(nKept);
    DropLast(text, '\r');
}

/// What a program of that name would do: the one command that every sample asks for, so no process is spent
/// on it.
ShellOutcome RunMemoryReport()
{
    ShellOutcome outcome;
    MemoryFigures figures;
    const auto kernelPageBytes = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
    if (const MemoryProblem problem = ReadMemoryFigures("/", kernelPageBytes, figures)) {
        outcome.errors = "vm_stat: " + MemoryProblemText(problem);
        outcome.nStatus = 1;
    } else {
        ReportBuffer buffer;
        outcome.output = MemoryReport(figures, buffer);
    }
    return outcome;
}

} // namespace

Failure RunShellScript(const std::string &command, bool bAlterLineEndings, Deadline deadline,
                       std::string &output)
{
    ShellOutcome outcome;
    if (command == "vm_stat" && !IsInPath(command)) {
        outcome = RunMemoryReport();
    } else if (Failure failure = RunShell(command, deadline, outcome)) {
        return failure;
    }
    if (outcome.nStatus != 0) {
        std::string text = outcome.errors.empty() ? outcome.output : outcome.errors;
        DropLast(text, '\n');
        return {outcome.nStatus, text.empty() ? "The command exited with a non-zero status." : text};
    }
    output = std::move(outcome.output);
    if (bAlterLineEndings) {
        AlterLineEndings(output);
    }
    return {};
}
