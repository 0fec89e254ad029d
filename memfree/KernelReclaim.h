#pragma once

#include "memfree/StoppingRule.h"

#include <cstdint>
#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

// The requests to reclaim that the kernel accepts: dropping the page cache, and memory.reclaim of a cgroup.

/// Whether this process may write sys/vm/drop_caches in the proc directory.
bool MayDropCaches(const std::string &proc);

/// Drops the whole clean page cache. @return false if the kernel refuses
bool DropPageCache(const std::string &proc);

/// The cgroups of the user's service manager with a memory.reclaim that the user may write: the manager's own
/// cgroup, otherwise the cgroups directly below it (such as app.slice and session.slice).
std::vector<std::string> FindReclaimableCgroups(const std::string &cgroup, uid_t user);

/// The inactive file cache of a cgroup and all cgroups below it, in bytes; 0 if unknown.
std::uint64_t InactiveInCgroup(const std::string &group);

/// Whether the kernel accepts "swappiness=0" in a reclaim request (6.12 does). Reclaims nothing.
bool CanReclaimWithoutSwap(const std::string &group);

/// Has the kernel reclaim the cgroup's inactive cache in steps, until none is left or check() returns a
/// reason to stop. @return Stop::Failed if the kernel refuses the first request
Stop ReclaimCgroup(const std::string &group, bool bWithoutSwap, const std::function<Stop()> &check);
