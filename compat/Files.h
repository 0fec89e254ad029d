#pragma once

#include <string>

/// Reads a file from its start, at most the first MiB, into content.
/// @return false if it cannot be opened or read, or is not a regular file; errno says why
bool ReadFile(const std::string &path, std::string &content);

/// The same from an open descriptor, of whatever kind.
/// @return false if a read fails; errno says why. More than nMaxBytes is not an error: content then has
/// nMaxBytes.
bool ReadAll(int descriptor, std::size_t nMaxBytes, std::string &content);

/// Writes all of the text, in one write() unless the system cuts it short. @return false on failure; errno
/// says why
bool WriteAll(int descriptor, const std::string &text);

/// What errno says, as text.
std::string LastError();
