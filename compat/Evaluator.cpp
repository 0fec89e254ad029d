#include "compat/Evaluator.h"

#include "compat/LoginItems.h"
#include "compat/ShellScript.h"

#include <algorithm>

Value Evaluator::Run(const Node &node)
{
    switch (node.kind) {
    case NodeKind::Block:
        return RunChildren(node);
    case NodeKind::DoShellScript:
        return DoShellScript(node);
    case NodeKind::NameOfEveryLoginItem:
        return NameOfEveryLoginItem(node);
    case NodeKind::IfLoginItemExists:
        return IfLoginItemExists(node);
    case NodeKind::MakeLoginItem:
        return MakeItem(node);
    case NodeKind::DeleteLoginItem:
        FailSystemEvents(node, DeleteLoginItem(node.text));
        break;
    }
    return std::nullopt;
}

Value Evaluator::RunChildren(const Node &node)
{
    Value last;
    for (const Node &child : node.children) {
        if (!error) {
            last = Run(child);
        }
    }
    return last;
}

Value Evaluator::DoShellScript(const Node &node)
{
    std::string output;
    Fail(node, RunShellScript(node.text, !node.bFlag, deadline, output));
    return output;
}

Value Evaluator::NameOfEveryLoginItem(const Node &node)
{
    std::vector<std::string> names;
    FailSystemEvents(node, LoginItemNames(names));
    std::string list;
    for (const std::string &name : names) {
        list += (list.empty() ? "" : ", ") + name;
    }
    return list;
}

Value Evaluator::IfLoginItemExists(const Node &node)
{
    std::vector<std::string> names;
    FailSystemEvents(node, LoginItemNames(names));
    return std::ranges::find(names, node.text) != names.end() ? RunChildren(node) : std::nullopt;
}

Value Evaluator::MakeItem(const Node &node)
{
    std::string name;
    FailSystemEvents(node, MakeLoginItem(node.text, name));
    return "login item " + name;
}

void Evaluator::Fail(const Node &node, const Failure &failure)
{
    if (failure && !error) {
        error = {false, node.range, failure};
    }
}

void Evaluator::FailSystemEvents(const Node &node, const Failure &failure)
{
    Fail(node, {failure.number, "System Events got an error: " + failure.text});
}
