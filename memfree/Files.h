#pragma once

#include <string>
#include <string_view>

/// Reads a whole file. @return false if it cannot be opened or read; errno has the reason
bool ReadFile(const std::string &path, std::string &content);

/// Writes the whole text, in one write() unless the system cuts it short. @return false on failure; errno
/// has the reason
bool WriteAll(int descriptor, std::string_view text);

/// Whether the descriptor is a pipe that has no reader any more, for example because the calling program was
/// killed.
bool IsReaderGone(int descriptor);
