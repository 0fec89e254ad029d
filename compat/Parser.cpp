#include "compat/Parser.h"

#include <algorithm>
#include <iterator>

namespace {

/// Deep enough for any script written by hand, shallow enough for the stack.
constexpr int nMaxDepth = 200;

} // namespace

/// What a statement can begin with, and whether it is System Events that knows it.
constexpr Parser::Command Parser::commands[] = {
    {"do", false, NodeKind::DoShellScript, &Parser::DoShellScript},
    {"tell", false, NodeKind::Block, &Parser::Tell},
    {"get", true, NodeKind::NameOfEveryLoginItem, &Parser::NameOfEveryLoginItem},
    {"if", true, NodeKind::IfLoginItemExists, &Parser::IfLoginItemExists},
    {"make", true, NodeKind::MakeLoginItem, &Parser::MakeLoginItem},
    {"delete", true, NodeKind::DeleteLoginItem, &Parser::DeleteLoginItem},
};

Node Parser::Parse()
{
    Node program;
    Statements(program);
    if (!tokens.IsAt(TokenKind::EndOfScript)) {
        tokens.FailExpected("end of script");
    }
    return program;
}

void Parser::Statements(Node &block)
{
    for (;;) {
        while (tokens.IsAt(TokenKind::EndOfLine)) {
            tokens.Advance();
        }
        if (tokens.IsAt(TokenKind::EndOfScript) || tokens.IsAtWord("end")) {
            return;
        }
        block.children.push_back(Statement());
        tokens.ExpectEndOfLine();
    }
}

Node Parser::Statement()
{
    Node statement;
    const auto *const command = std::ranges::find_if(commands, [this](const Command &known) {
        return tokens.IsAtWord(known.word) && (!known.bSystemEvents || bInSystemEvents);
    });
    if (++nDepth > nMaxDepth) {
        tokens.Fail(true, {StackOverflow, "The script is nested too deeply."});
    } else if (command == std::end(commands)) {
        tokens.FailExpected("expression");
    } else {
        statement = {command->kind, tokens.Here().range, {}, false, {}};
        tokens.Advance();
        (this->*command->parse)(statement);
        statement.range.nEnd = tokens.LastEnd();
    }
    --nDepth;
    return statement;
}

void Parser::DoShellScript(Node &node)
{
    tokens.Expect({"shell", "script"});
    node.text = tokens.ExpectText();
    if (tokens.IsAtWord("without")) {
        tokens.Expect({"without", "altering", "line", "endings"});
        node.bFlag = true;
    }
}

void Parser::Tell(Node &node)
{
    tokens.Expect({"application"});
    if (tokens.IsAt(TokenKind::Text) && tokens.Here().text != "System Events") {
        // Without the application's own words the rest cannot even be read.
        tokens.Fail(false, {CannotGet, "Can't get application " + Quoted(tokens.Here().text) + "."});
    }
    tokens.ExpectText();
    tokens.ExpectEndOfLine();
    const bool bOuter = bInSystemEvents;
    bInSystemEvents = true;
    Statements(node);
    bInSystemEvents = bOuter;
    tokens.Expect({"end", "tell"});
}

void Parser::NameOfEveryLoginItem(Node & /*node*/)
{
    tokens.Expect({"the", "name", "of", "every", "login", "item"});
}

void Parser::IfLoginItemExists(Node &node)
{
    tokens.Expect({"login", "item"});
    node.text = tokens.ExpectText();
    tokens.Expect({"exists", "then"});
    tokens.ExpectEndOfLine();
    Statements(node);
    tokens.Expect({"end", "if"});
}

void Parser::MakeLoginItem(Node &node)
{
    tokens.Expect({"login", "item", "at", "end", "with", "properties", "{", "path", ":"});
    node.text = tokens.ExpectText();
    tokens.Expect({",", "kind", ":", "application", "}"});
}

void Parser::DeleteLoginItem(Node &node)
{
    tokens.Expect({"login", "item"});
    node.text = tokens.ExpectText();
}
