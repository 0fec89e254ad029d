#pragma once

#include <string>

/// Whether there is a regular file at the path that this user may execute.
bool IsProgram(const std::string &path);

/// Whether /bin/sh would find a program of that name (no slash in it) in PATH.
bool IsInPath(const std::string &name);
