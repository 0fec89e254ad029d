#pragma once

#include "compat/Program.h"
#include "compat/TokenStream.h"

/// Turns a script into a program, or says where and why it is none. Nothing is run before all of it has been
/// understood.
class Parser
{
public:
    explicit Parser(std::string_view source) : tokens(source) {}

    /// The whole script, as a block. To be called once; the result is of use only if there is no error then.
    Node Parse();

    const ScriptError &Error() const { return tokens.Error(); }

private:
    struct Command
    {
        std::string_view word;
        bool bSystemEvents;
        NodeKind kind;
        void (Parser::*parse)(Node &node);
    };
    static const Command commands[];

    /// Statements up to an "end" or the end of the script.
    void Statements(Node &block);
    Node Statement();
    void DoShellScript(Node &node);
    void Tell(Node &node);
    void NameOfEveryLoginItem(Node &node);
    void IfLoginItemExists(Node &node);
    void MakeLoginItem(Node &node);
    void DeleteLoginItem(Node &node);

    TokenStream tokens;
    int nDepth = 0;
    bool bInSystemEvents = false;
};
