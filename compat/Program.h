#pragma once

#include "compat/ScriptError.h"

#include <vector>

enum class NodeKind
{
    Block,           ///< children: statements
    Tell,            ///< children: statements for System Events, the one application known
    If,              ///< children: a condition, then statements
    DoShellScript,   ///< text: the command; bFlag: line endings stay as they are
    Text,            ///< text: a literal
    LoginItem,       ///< text: its name; bFlag: the name is asked for, not the item
    EveryLoginItem,  ///< bFlag: the names are asked for, not the items
    Exists,          ///< text: a login item's name
    MakeLoginItem,   ///< text: the application's path
    DeleteLoginItem, ///< text: its name
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
