#pragma once

#include <cstdint>
#include <sys/types.h>

/// The pages to populate: those of a file, or anonymous memory without a descriptor.
struct PressureSource
{
    int descriptor = -1;
    std::uint64_t size = 0;
};

/// The child's reply to one step.
struct PressureReply
{
    /// Bytes populated so far that are still resident.
    std::uint64_t resident = 0;
    bool bPopulated = false;
};

/// Why the child is gone.
enum class ChildEnd
{
    /// It could not populate any more, or still runs.
    Failed,
    /// It had to wait too long for the next request.
    NotNeeded,
    /// By a signal, as the OOM killer does it.
    Killed
};

/// A child process that holds the memory of the pressure and populates more of it on request. Its end
/// releases all of that memory, whatever the cause. It dies with its parent, and soon after its parent was
/// suspended. The OOM killer picks it first.
class PressureChild
{
public:
    /// Starts the child. Started() tells whether that worked.
    explicit PressureChild(const PressureSource &source);
    /// Kills the child and waits until its memory is free again.
    ~PressureChild();
    PressureChild(const PressureChild &) = delete;
    PressureChild &operator=(const PressureChild &) = delete;

    bool Started() const { return child > 0; }
    /// Requests the next step. @return false if the child is gone
    bool Populate(std::uint64_t bytes);
    /// Waits up to ms for the reply to a step. @return false on timeout. A reply without bPopulated means
    /// that the child can populate no more, or is gone.
    bool WaitForReply(int ms, PressureReply &reply);
    /// Valid only after Populate() or WaitForReply() found that the child is gone.
    ChildEnd End() const;

private:
    pid_t child = -1;
    bool bGone = false;
    int requests = -1;
    int replies = -1;
};
