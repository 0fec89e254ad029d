// osascript: runs the AppleScript that Kelvo speaks, where the system has no interpreter of its own.
#include "compat/Evaluator.h"
#include "compat/Files.h"
#include "compat/Parser.h"
#include "compat/ReadAhead.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <getopt.h>
#include <strings.h>
#include <unistd.h>

ReadAhead readAhead = {};

namespace {

enum ExitStatus
{
    Success = 0,
    ScriptFailed = 1,
    BadArguments = 2
};

/// Who runs scripts through this waits without end, so the end is kept here.
constexpr std::chrono::seconds timeLimit(10);
constexpr std::size_t nMaxScriptBytes = std::size_t(1) << 20;

constexpr std::string_view help = "usage: osascript [-l AppleScript] [-e line] ... [file]\n"
                                  "Runs a script: the lines, else the file, else standard input.\n"
                                  "\n"
                                  "  -l language  AppleScript, the only language known\n"
                                  "  -e line      a line of the script; may be given again\n"
                                  "  -h, --help   this text\n";

int Fail(const std::string &why, ExitStatus status)
{
    WriteAll(STDERR_FILENO, "osascript: " + why + "\n");
    return status;
}

/// Positions are told in characters, so the bytes that continue one in UTF-8 do not count.
std::string CharacterPosition(std::string_view script, std::size_t nByte)
{
    const auto startsCharacter = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    return std::to_string(std::ranges::count_if(script.substr(0, nByte), startsCharacter));
}

/// As osascript tells it: "BEGIN:END: execution error: TEXT (NUMBER)", a script's file name before it.
int Fail(const std::string &file, std::string_view script, const ScriptError &error)
{
    WriteAll(STDERR_FILENO, (file.empty() ? file : file + ':') +
                                CharacterPosition(script, error.range.nBegin) + ':' +
                                CharacterPosition(script, error.range.nEnd) +
                                (error.bSyntax ? ": syntax error: " : ": execution error: ") +
                                error.failure.text + " (" + std::to_string(error.failure.number) + ")\n");
    return ScriptFailed;
}

/// @param file  the script's, or empty for standard input
bool ReadScript(const std::string &file, std::string &script)
{
    const int descriptor = file.empty() ? STDIN_FILENO : open(file.c_str(), O_RDONLY | O_CLOEXEC);
    const bool bEnd = file.empty() && readAhead.bEnd;
    if (!bEnd && (descriptor < 0 || !ReadAll(descriptor, nMaxScriptBytes + 1, script))) {
        return false;
    }
    if (file.empty()) {
        script.insert(0, readAhead.bytes.data(), readAhead.nBytes);
    }
    errno = EFBIG;
    return script.size() <= nMaxScriptBytes;
}

int RunScript(const std::string &file, const std::string &script)
{
    Parser parser(script);
    const Node program = parser.Parse();
    if (parser.Error()) {
        return Fail(file, script, parser.Error());
    }
    Evaluator evaluator(Deadline::clock::now() + timeLimit);
    const Value result = evaluator.Run(program);
    if (evaluator.Error()) {
        return Fail(file, script, evaluator.Error());
    }
    // One write: the application takes what arrives first for all there is.
    if (result && !WriteAll(STDOUT_FILENO, *result + '\n')) {
        return Fail("cannot write: " + LastError(), ScriptFailed);
    }
    return Success;
}

} // namespace

int main(int argc, char *argv[])
{
    char name[] = "osascript";
    argv[0] = name; // what getopt's messages begin with
    const option longOptions[] = {{"help", no_argument, nullptr, 'h'}, {}};
    std::string script;
    bool bLines = false;
    // The plus sign: what follows the script's file belongs to the script.
    for (int letter = 0; (letter = getopt_long(argc, argv, "+l:e:h", longOptions, nullptr)) != -1;) {
        switch (letter) {
        case 'l':
            if (strcasecmp(optarg, "AppleScript") != 0) {
                return Fail(std::string("no such language: \"") + optarg + "\" (AppleScript only)",
                            ScriptFailed);
            }
            break;
        case 'e':
            script.append(bLines ? "\n" : "").append(optarg);
            bLines = true;
            break;
        case 'h':
            return WriteAll(STDOUT_FILENO, std::string(help)) ? Success : ScriptFailed;
        default:
            return BadArguments;
        }
    }

    const bool bFile = !bLines && optind < argc && std::string_view(argv[optind]) != "-";
    const std::string file = bFile ? argv[optind] : "";
    if (!bLines && !ReadScript(file, script)) {
        return Fail((bFile ? file : "standard input") + ": " + LastError(), ScriptFailed);
    }
    return RunScript(file, script);
}
