#pragma once

#include <cstddef>
#include <string>

/// A piece of the script, in bytes.
struct SourceRange
{
    std::size_t nBegin = 0;
    std::size_t nEnd = 0;
};

/// AppleScript's own numbers, as far as they are used here.
enum ErrorNumber : int
{
    NoError = 0,
    FileNotFound = -43,
    CannotGet = -1728,
    TimedOut = -1712,
    StackOverflow = -2706,
    Unexpected = -2741,
    HandlerFailed = -10000
};

/// Why something could not be done. The number is one of the above or the status of a shell command.
struct Failure
{
    int number = NoError;
    std::string text;

    explicit operator bool() const { return number != NoError; }
};

/// The same, and where in the script.
struct ScriptError
{
    bool bSyntax = false;
    SourceRange range;
    Failure failure;

    explicit operator bool() const { return static_cast<bool>(failure); }
};
