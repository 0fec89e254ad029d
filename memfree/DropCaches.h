#pragma once

#include <cstdint>
#include <string>

/// Whether this process may write the proc directory's sys/vm/drop_caches.
bool MayDropCaches(const std::string &proc);

/// Lets the kernel write dirty pages to their files, so that they are clean and can go; waits no longer than
/// ms. A file system that hangs (a server that is gone) keeps only a child of ours, never us. @return false
/// if it was given up
bool SyncWithin(int ms);

/// Drops the clean page cache, all of it. @return false if the kernel refuses; errno says why
bool DropPageCache(const std::string &proc);
