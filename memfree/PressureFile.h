#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// The directories to search for a disk file system, in order: from $XDG_CACHE_HOME and $HOME to /tmp.
std::vector<std::string> PressureDirectories();

/// The first directory where OpenPressureFile() succeeds; empty if there is none.
std::string FindPressureDirectory(const std::vector<std::string> &directories);

/// Makes a sparse file of the given size without a name and without disk blocks. It vanishes with its last
/// descriptor, however the process ends. Only on a disk file system, where the pages of a hole are plain page
/// cache. In a memory file system the kernel could not take them back; on a network or user-space file system
/// they would be work for a server.
/// @return the descriptor, or -1
int OpenPressureFile(const std::string &directory, std::uint64_t size);
