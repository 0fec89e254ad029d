#pragma once

/// Makes this process the user's only run until its end, also of its child processes. Two runs at once would
/// each take the other's pressure for memory in use, and its release for their own gain.
/// @return false if another run of the same user is in progress. True without a lock where there is no place
/// for one.
bool BecomeOnlyRun();
