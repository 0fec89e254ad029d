#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// The directories to search for a disk file system, in order: from $XDG_CACHE_HOME and $HOME to /tmp.
std::vector<std::string> PressureDirectories();

/// A sparse file that a directory can hold.
struct PressureFile
{
    /// Empty if there is no such directory.
    std::string directory;
    std::uint64_t size = 0;
};

/// The first directory where OpenPressureFile() succeeds with the given size, or else with half or a quarter
/// of it: a file system or a limit of this process can refuse large files. A directory whose file system
/// hangs is skipped.
PressureFile FindPressureFile(const std::vector<std::string> &directories, std::uint64_t size);

/// Makes the sparse file without a name and without disk blocks. It vanishes with its last
/// descriptor, however the process ends. Only on a disk file system, where the pages of a hole are plain page
/// cache. In a memory file system the kernel could not take them back; on a network or user-space file system
/// they would be work for a server.
/// @return the descriptor, or -1
int OpenPressureFile(const PressureFile &file);
