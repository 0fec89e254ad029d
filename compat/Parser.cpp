#include "compat/Parser.h"

#include <algorithm>
#include <iterator>

namespace {

/// Deep enough for any script written by hand, shallow enough for the stack.
constexpr int nMaxDepth = 200;

bool SameIgnoringCase(std::string_view a, std::string_view b)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::ranges::equal(a, b, {}, lower, lower);
}

} // namespace

/// What a statement can begin with. Anything else is an expression whose value is the statement's.
constexpr Parser::Command Parser::commands[] = {
    {"do", false, &Parser::DoShellScript},
    {"tell", false, &Parser::Tell},
    {"if", false, &Parser::If},
    {"get", false, &Parser::Get},
    {"make", true, &Parser::MakeLoginItem},
    {"delete", true, &Parser::DeleteLoginItem},
};

Parser::Parser(std::string_view source) : tokens(source) {}

Node Parser::Parse()
{
    Node program = NodeHere(NodeKind::Block);
    Statements(program);
    if (!tokens.IsAt(TokenKind::EndOfScript)) {
        tokens.FailExpected("end of script");
    }
    return Finish(std::move(program));
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
    Descend();
    const auto *const command = std::ranges::find_if(commands, [this](const Command &known) {
        return tokens.IsAtWord(known.word) && (!known.bSystemEvents || bInSystemEvents);
    });
    Node statement = command != std::end(commands) ? (this->*command->parse)() : Expression();
    --nDepth;
    return statement;
}

Node Parser::Tell()
{
    Node tell = NodeHere(NodeKind::Tell);
    tokens.Advance();
    if (!tokens.SkipWord("app")) {
        tokens.Expect({"application"});
    }
    if (!tokens.IsAt(TokenKind::Text)) {
        tokens.FailExpected("string");
    } else if (!SameIgnoringCase(tokens.Here().text, "System Events")) {
        // Without the application's own words the rest cannot even be read.
        tokens.Fail(false, {CannotGet, "Can't get application " + Quoted(tokens.Here().text) + "."});
    }
    tokens.Advance();

    const bool bOuter = bInSystemEvents;
    bInSystemEvents = true;
    if (tokens.SkipWord("to")) {
        tell.children.push_back(Statement());
    } else {
        tokens.ExpectEndOfLine();
        Statements(tell);
        EndOf("tell");
    }
    bInSystemEvents = bOuter;
    return Finish(std::move(tell));
}

Node Parser::If()
{
    Node choice = NodeHere(NodeKind::If);
    tokens.Advance();
    choice.children.push_back(Expression());
    tokens.Expect({"then"});
    if (tokens.IsAt(TokenKind::EndOfLine)) {
        Statements(choice);
        EndOf("if");
    } else {
        choice.children.push_back(Statement());
    }
    return Finish(std::move(choice));
}

Node Parser::Get()
{
    tokens.Advance();
    return Expression();
}

Node Parser::DoShellScript()
{
    Node command = NodeHere(NodeKind::DoShellScript);
    tokens.Expect({"do", "shell", "script"});
    command.text = TextLiteral();
    const bool bWithout = tokens.IsAtWord("without");
    if (bWithout || tokens.IsAtWord("with")) {
        tokens.Advance();
        tokens.Expect({"altering", "line", "endings"});
        command.bFlag = bWithout;
    }
    return Finish(std::move(command));
}

Node Parser::MakeLoginItem()
{
    Node make = NodeHere(NodeKind::MakeLoginItem);
    tokens.Advance();
    tokens.SkipWord("new");
    tokens.Expect({"login", "item"});
    if (tokens.SkipWord("at")) {
        tokens.Expect({"end"});
        if (tokens.SkipWord("of")) {
            tokens.SkipWord("the");
            tokens.Expect({"login", "items"});
        }
    }
    tokens.Expect({"with", "properties"});
    tokens.ExpectSymbol("{");
    bool bPath = false;
    bool bKind = false;
    do {
        if (!bPath && tokens.IsAtWord("path")) {
            tokens.Advance();
            tokens.ExpectSymbol(":");
            make.text = TextLiteral();
            bPath = true;
        } else if (!bKind && tokens.IsAtWord("kind")) {
            tokens.Advance();
            tokens.ExpectSymbol(":");
            tokens.Expect({"application"});
            bKind = true;
        } else {
            tokens.FailExpected("path or kind");
        }
    } while (tokens.SkipSymbol(","));
    if (!bPath) {
        tokens.FailExpected("path");
    }
    tokens.ExpectSymbol("}");
    return Finish(std::move(make));
}

Node Parser::DeleteLoginItem()
{
    Node removal = NodeHere(NodeKind::DeleteLoginItem);
    tokens.Expect({"delete"});
    tokens.SkipWord("the");
    tokens.Expect({"login", "item"});
    removal.text = TextLiteral();
    return Finish(std::move(removal));
}

Node Parser::Expression()
{
    if (tokens.IsAt(TokenKind::Text)) {
        Node text = NodeHere(NodeKind::Text);
        text.text = TextLiteral();
        return text;
    }
    const SourceRange start = tokens.Here().range;
    const bool bBefore = bInSystemEvents && tokens.SkipWord("exists");
    Node operand = tokens.IsAtSymbol("(") ? Parenthesis() : Reference();
    if (bBefore || (bInSystemEvents && tokens.IsAtWord("exists"))) {
        if (operand.kind != NodeKind::LoginItem || operand.bFlag) {
            tokens.FailExpected("end of line");
        }
        operand.kind = NodeKind::Exists;
        operand.range.nBegin = start.nBegin;
        if (!bBefore) {
            tokens.Advance();
        }
        operand = Finish(std::move(operand));
    }
    return operand;
}

Node Parser::Parenthesis()
{
    Descend();
    tokens.ExpectSymbol("(");
    Node inside = Expression();
    tokens.ExpectSymbol(")");
    --nDepth;
    return inside;
}

Node Parser::Reference()
{
    constexpr std::string_view firstWords[] = {"the", "name", "every", "login"};
    const auto isHere = [this](std::string_view word) { return tokens.IsAtWord(word); };
    if (!bInSystemEvents || std::ranges::none_of(firstWords, isHere)) {
        tokens.FailExpected("expression");
    }
    Node reference = NodeHere(NodeKind::LoginItem);
    tokens.SkipWord("the");
    if (tokens.SkipWord("name")) {
        tokens.Expect({"of"});
        tokens.SkipWord("the");
        reference.bFlag = true;
    }
    const bool bEvery = tokens.SkipWord("every");
    tokens.Expect({"login"});
    if (bEvery || tokens.IsAtWord("items")) {
        reference.kind = NodeKind::EveryLoginItem;
        tokens.Expect({bEvery ? "item" : "items"});
    } else {
        tokens.Expect({"item"});
        reference.text = TextLiteral();
    }
    return Finish(std::move(reference));
}

std::string Parser::TextLiteral()
{
    std::size_t nOpen = 0;
    for (; tokens.SkipSymbol("("); ++nOpen) {
    }
    if (!tokens.IsAt(TokenKind::Text)) {
        tokens.FailExpected("string");
    }
    std::string text = tokens.Here().text;
    tokens.Advance();
    for (; nOpen > 0; --nOpen) {
        tokens.ExpectSymbol(")");
    }
    return text;
}

void Parser::EndOf(std::string_view word)
{
    tokens.Expect({"end"});
    if (!tokens.IsAt(TokenKind::EndOfLine) && !tokens.IsAt(TokenKind::EndOfScript)) {
        tokens.Expect({word});
    }
}

Node Parser::Finish(Node node) const
{
    node.range.nEnd = std::max(node.range.nBegin, tokens.LastEnd());
    return node;
}

void Parser::Descend()
{
    if (++nDepth > nMaxDepth) {
        tokens.Fail(true, {StackOverflow, "The script is nested too deeply."});
    }
}
