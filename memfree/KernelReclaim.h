#pragma once

#include "memfree/StoppingRule.h"

#include <cstdint>
#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

/// Whether this process may write the proc directory's sys/vm/drop_caches.
bool MayDropCaches(const std::string &proc);

/// Lets the kernel write dirty pages to their files, so that they are clean and can go; waits no longer than
/// ms. A file system that hangs (a server that is gone) keeps only a child of ours, never us. @return false
/// if it was given up
bool SyncWithin(int ms);

/// Drops the clean page cache, all of it. @return false if the kernel refuses; errno says why
bool DropPageCache(const std::string &proc);

/// The control groups under this user's own service manager that have a memory.reclaim which the user may
/// write: the manager's own group if it may be written, otherwise the groups right below it (app.slice and
/// session.slice).
std::vector<std::string> FindReclaimableCgroups(const std::string &cgroup, uid_t user);

/// File cache not used lately in such a group and all below it, in bytes; 0 if it cannot be told.
std::uint64_t InactiveInCgroup(const std::string &group);

/// Whether the kernel takes "swappiness=0" with a request to reclaim (6.12 does); asks for nothing to be
/// reclaimed.
bool ReclaimsWithoutSwap(const std::string &group);

/// Has the kernel reclaim the group's inactive cache in steps, until there is no more or check says stop.
/// @return Stop::Failed if the kernel refused from the start
Stop ReclaimCgroup(const std::string &group, bool bWithoutSwap, const std::function<Stop()> &check);
