#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Where to look for a disk file system, in order, from $XDG_CACHE_HOME and $HOME on. Empty names are left
/// out.
std::vector<std::string> PressureDirectories();

/// The first directory in which OpenPressureFile() succeeds; empty if there is none.
std::string FindPressureDirectory(const std::vector<std::string> &directories);

/// A new file of that size without a name and without a block on the disk: it is gone with its last
/// descriptor, however we end. Only where the pages of a hole are mere page cache, that is on a disk file
/// system: on one in memory they would be memory that nobody can take back, on the network or in user space
/// somebody else's work.
/// @return its descriptor, or -1
int OpenPressureFile(const std::string &directory, std::uint64_t size);
