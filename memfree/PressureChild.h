#pragma once

#include <cstdint>
#include <sys/types.h>

/// What is pressed with: the pages of a file, or anonymous memory if there is no descriptor.
struct PressureSource
{
    int descriptor = -1;
    std::uint64_t size = 0;
};

/// The answer to one step.
struct PressureReply
{
    /// Bytes pressed with so far that are still in memory.
    std::uint64_t resident = 0;
    bool bDone = false;
};

/// A process of its own that holds the memory of the pressure, and presses a step further each time it is
/// told to. All of it is given back by the end of that process, whatever ends it: it dies with its parent,
/// and it is the first that the kernel picks should memory run out.
class PressureChild
{
public:
    /// Starts it; Started() tells whether that worked.
    explicit PressureChild(const PressureSource &source);
    /// Ends it, and returns when its memory is free again.
    ~PressureChild();
    PressureChild(const PressureChild &) = delete;
    PressureChild &operator=(const PressureChild &) = delete;

    bool Started() const { return child > 0; }
    /// Tells it to press that much further; false if it is gone.
    bool Press(std::uint64_t bytes);
    /// Waits up to ms for the answer; false if there is none yet. Without bDone the child can do no more, or
    /// is gone.
    bool WaitForReply(int ms, PressureReply &reply);
    /// Whether it has been killed, as by the kernel when memory ran out. To be asked when it answers no more.
    bool Killed() const;

private:
    pid_t child = -1;
    bool bGone = false;
    int requests = -1;
    int replies = -1;
};
