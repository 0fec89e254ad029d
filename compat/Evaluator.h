#pragma once

#include "compat/Deadline.h"
#include "compat/Program.h"

#include <optional>

/// What a statement yields: nothing, or what osascript shows of it.
using Value = std::optional<std::string>;

/// Runs a program, up to its end or the first error.
class Evaluator
{
public:
    /// @param end  when a shell command that is still running is killed
    explicit Evaluator(Deadline end) : deadline(end) {}

    /// @return the value of the statement run last; of use only if there is no error
    Value Run(const Node &node);

    const ScriptError &Error() const { return error; }

private:
    Value RunChildren(const Node &node);
    Value DoShellScript(const Node &node);
    Value NameOfEveryLoginItem(const Node &node);
    Value IfLoginItemExists(const Node &node);
    Value MakeItem(const Node &node);
    void Fail(const Node &node, const Failure &failure);
    void FailSystemEvents(const Node &node, const Failure &failure);

    const Deadline deadline;
    ScriptError error;
};
