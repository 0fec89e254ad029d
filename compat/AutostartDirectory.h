#pragma once

#include "compat/ScriptError.h"

/// Where the desktop looks for what the user wants started at login: $XDG_CONFIG_HOME/autostart if that is
/// absolute, else
/// ~/.config/autostart. It need not be there.
Failure AutostartDirectory(std::string &directory);

/// Makes a directory and what is missing above it, for this user only.
Failure MakeDirectories(const std::string &directory);

/// Writes a file whole or not at all: a failure leaves what was there. A symbolic link stays one and its
/// target is written.
Failure ReplaceFile(const std::string &path, const std::string &text);
