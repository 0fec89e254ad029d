#include "compat/TokenStream.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr std::string_view reservedWords[] = {"application", "end", "every",  "exists", "get",
                                              "if",          "of",  "script", "tell",   "the",
                                              "then",        "to",  "with",   "without"};

std::string Describe(const Token &token)
{
    switch (token.kind) {
    case TokenKind::Word:
        return std::ranges::find(reservedWords, token.text) != std::end(reservedWords) ? Quoted(token.text)
                                                                                       : "identifier";
    case TokenKind::Text:
        return Quoted("\"");
    case TokenKind::Number:
        return "number";
    case TokenKind::Symbol:
        return Quoted(token.text);
    case TokenKind::EndOfLine:
        return "end of line";
    case TokenKind::EndOfScript:
        break;
    }
    return "end of script";
}

} // namespace

std::string Quoted(std::string_view text)
{
    return '"' + std::string(text) + '"';
}

TokenStream::TokenStream(std::string_view source) : tokenizer(source), token(tokenizer.Next()) {}

const ScriptError &TokenStream::Error() const
{
    // What the tokenizer stumbles over lies before the sudden end that the parser then sees.
    return tokenizer.Error() ? tokenizer.Error() : error;
}

bool TokenStream::IsAtWord(std::string_view word) const
{
    return token.kind == TokenKind::Word && token.text == word;
}

bool TokenStream::IsAtSymbol(std::string_view symbol) const
{
    return token.kind == TokenKind::Symbol && token.text == symbol;
}

bool TokenStream::SkipWord(std::string_view word)
{
    const bool bHere = IsAtWord(word);
    if (bHere) {
        Advance();
    }
    return bHere;
}

bool TokenStream::SkipSymbol(std::string_view symbol)
{
    const bool bHere = IsAtSymbol(symbol);
    if (bHere) {
        Advance();
    }
    return bHere;
}

void TokenStream::Expect(std::initializer_list<std::string_view> words)
{
    for (const std::string_view word : words) {
        if (!SkipWord(word)) {
            FailExpected(Quoted(word));
        }
    }
}

void TokenStream::ExpectSymbol(std::string_view symbol)
{
    if (!SkipSymbol(symbol)) {
        FailExpected(Quoted(symbol));
    }
}

void TokenStream::ExpectEndOfLine()
{
    if (token.kind != TokenKind::EndOfLine && token.kind != TokenKind::EndOfScript) {
        FailExpected("end of line");
    }
}

void TokenStream::Advance()
{
    nLastEnd = token.range.nEnd;
    if (!error) {
        token = tokenizer.Next();
    }
}

void TokenStream::Fail(bool bSyntax, Failure failure)
{
    if (!error) {
        error = {bSyntax, token.range, std::move(failure)};
        token.kind = TokenKind::EndOfScript;
    }
}

void TokenStream::FailExpected(std::string_view what)
{
    Fail(true, {Unexpected, "Expected " + std::string(what) + " but found " + Describe(token) + "."});
}
