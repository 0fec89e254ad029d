#pragma once

/// Takes the code of program and libraries out of this process's memory: what of it is used comes back from
/// the system's cache by itself. Most of it is for starting only, and of all cache a system short of memory
/// gives up mapped code last.
void ReleaseStartUpCode();
