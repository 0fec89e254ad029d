#pragma once

#include <functional>

/// Runs work() in a child process and waits at most ms for it. So a hanging file system (for example of a
/// lost server) blocks only that child.
/// @return whether work() returned true in time
bool SucceedsWithin(int ms, const std::function<bool()> &work);
