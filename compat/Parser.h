#pragma once

#include "compat/Program.h"
#include "compat/TokenStream.h"

/// Turns a script into a program, or says where and why it is none. Nothing is run before all of it has been
/// understood.
class Parser
{
public:
    explicit Parser(std::string_view source);

    /// The whole script, as a block. To be called once; the result is of use only if there is no error then.
    Node Parse();

    const ScriptError &Error() const { return tokens.Error(); }

private:
    struct Command
    {
        std::string_view word;
        bool bSystemEvents;
        Node (Parser::*parse)();
    };
    static const Command commands[];

    void Statements(Node &block);
    Node Statement();
    Node Tell();
    Node If();
    Node Get();
    Node DoShellScript();
    Node MakeLoginItem();
    Node DeleteLoginItem();
    Node Expression();
    Node Parenthesis();
    /// What only System Events knows: its login items and their names.
    Node Reference();
    /// A text in any number of parentheses.
    std::string TextLiteral();
    /// "end WORD", the second word as optional as it is in the language.
    void EndOf(std::string_view word);

    Node NodeHere(NodeKind kind) const { return {kind, tokens.Here().range, {}, false, {}}; }
    /// The end of what was parsed last is the end of the node.
    Node Finish(Node node) const;
    /// Counts one level down; fails where the stack would become the limit.
    void Descend();

    TokenStream tokens;
    int nDepth = 0;
    bool bInSystemEvents = false;
};
