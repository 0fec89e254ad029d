#pragma once

#include "compat/ScriptError.h"

#include <vector>

enum class NodeKind
{
    Block,         ///< children: statements
    DoShellScript, ///< text: the command; bFlag: line endings stay as they are
    NameOfEveryLoginItem,
    IfLoginItemExists, ///< text: its name; children: statements
    MakeLoginItem,     ///< text: the application's path
    DeleteLoginItem,   ///< text: its name
};

/// A parsed script or part of one: all that is needed to run it, with nothing left to be looked up.
struct Node
{
    NodeKind kind = NodeKind::Block;
    SourceRange range;
    std::string text;
    bool bFlag = false;
    std::vector<Node> children;
};
