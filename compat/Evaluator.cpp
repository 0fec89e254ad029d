#include "compat/Evaluator.h"

#include "compat/LoginItems.h"
#include "compat/ShellScript.h"

#include <algorithm>

namespace {

const std::string truth = "true";
const std::string untruth = "false";

Failure NoSuchItem(const std::string &name)
{
    return {CannotGet, "Can't get login item \"" + name + "\"."};
}

} // namespace

Value Evaluator::Run(const Node &node)
{
    switch (node.kind) {
    case NodeKind::Block:
    case NodeKind::Tell:
        return RunFrom(node, 0);
    case NodeKind::If:
        return If(node);
    case NodeKind::DoShellScript:
        return DoShellScript(node);
    case NodeKind::Text:
        return node.text;
    case NodeKind::LoginItem:
        return GetLoginItem(node);
    case NodeKind::EveryLoginItem:
        return GetEveryLoginItem(node);
    case NodeKind::Exists:
        return Exists(node) ? truth : untruth;
    case NodeKind::MakeLoginItem:
        return MakeItem(node);
    case NodeKind::DeleteLoginItem:
        return DeleteItem(node);
    }
    return std::nullopt;
}

Value Evaluator::RunFrom(const Node &node, std::size_t nFirst)
{
    Value last;
    for (std::size_t child = nFirst; child < node.children.size() && !error; ++child) {
        last = Run(node.children[child]);
    }
    return last;
}

Value Evaluator::If(const Node &node)
{
    const Value condition = Run(node.children.front());
    if (condition == truth) {
        return RunFrom(node, 1);
    }
    if (condition != untruth) {
        Fail(node.children.front(),
             {CannotCoerce, "Can't make \"" + condition.value_or("") + "\" into type boolean."});
    }
    return std::nullopt;
}

Value Evaluator::DoShellScript(const Node &node)
{
    std::string output;
    Fail(node, RunShellScript(node.text, !node.bFlag, deadline, output));
    return output;
}

Value Evaluator::GetLoginItem(const Node &node)
{
    if (!Exists(node)) {
        FailSystemEvents(node, NoSuchItem(node.text));
    }
    return (node.bFlag ? "" : "login item ") + node.text;
}

Value Evaluator::GetEveryLoginItem(const Node &node)
{
    std::vector<std::string> names;
    FailSystemEvents(node, LoginItemNames(names));
    std::string list;
    for (const std::string &name : names) {
        list += (list.empty() ? "" : ", ") + std::string(node.bFlag ? "" : "login item ") + name;
    }
    return list;
}

bool Evaluator::Exists(const Node &node)
{
    std::vector<std::string> names;
    FailSystemEvents(node, LoginItemNames(names));
    return std::ranges::find(names, node.text) != names.end();
}

Value Evaluator::MakeItem(const Node &node)
{
    std::string name;
    FailSystemEvents(node, MakeLoginItem(node.text, name));
    return "login item " + name;
}

Value Evaluator::DeleteItem(const Node &node)
{
    if (!Exists(node)) {
        FailSystemEvents(node, NoSuchItem(node.text));
    } else {
        FailSystemEvents(node, DeleteLoginItem(node.text));
    }
    return std::nullopt;
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
