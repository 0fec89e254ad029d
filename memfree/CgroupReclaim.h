#pragma once

#include "memfree/StoppingRule.h"

#include <cstdint>
#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

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
