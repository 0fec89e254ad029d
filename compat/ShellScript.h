#pragma once

#include "compat/Deadline.h"
#include "compat/ScriptError.h"

/// Runs a command as AppleScript's "do shell script" does: by /bin/sh, nothing on its standard input, until
/// its output ends. A bare `vm_stat` is answered in this process where none is installed.
///
/// @param bAlterLineEndings  turn each line end of the output into CR and drop the last one
/// @param deadline           when the command and its process group are killed, and the run fails with
/// TimedOut
/// @param output             what the command wrote to standard output
/// @return if the command failed, its exit status and what it wrote to standard error (else standard output,
/// else a
///         fixed sentence)
Failure RunShellScript(const std::string &command, bool bAlterLineEndings, Deadline deadline,
                       std::string &output);
