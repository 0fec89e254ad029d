#pragma once

/// What the program counts about its own use, for the one-time feedback prompt.
enum class UsageCounter
{
    Starts,      ///< "Application/StartCount"
    FreeingRuns, ///< "Application/ExecCount": runs that ended normally
};

/// Counts one use in the settings store, and says whether the program has by now been used enough for the
/// feedback prompt: from the 17th start and from the 22nd freeing run on.
bool CountUsage(UsageCounter counter);
