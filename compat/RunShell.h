#pragma once

#include "compat/Deadline.h"
#include "compat/ScriptError.h"

struct ShellOutcome
{
    int nStatus = 0; ///< as the shell counts: 128 and more for a signal
    std::string output;
    std::string errors;
};

/// Runs a command by /bin/sh in a process group of its own and collects what it writes, until both its
/// outputs are closed (also by what it left running in the background) and it has ended. A signal that ends
/// this process ends the group too.
/// @return TimedOut or HandlerFailed, with the group killed, if it takes too long, writes too much or cannot
/// be started
Failure RunShell(const std::string &command, Deadline deadline, ShellOutcome &outcome);
