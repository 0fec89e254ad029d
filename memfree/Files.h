#pragma once

#include <string>

/// Reads all of a file. @return false if it cannot be opened or read; errno says why
bool ReadFile(const std::string &path, std::string &content);

/// Writes all of the text, in one write() unless the system cuts it short. @return false on failure; errno
/// says why
bool WriteAll(int descriptor, const std::string &text);

/// Whether the descriptor is a pipe whose reader has gone: the program that asked has been killed, say.
bool IsReaderGone(int descriptor);
