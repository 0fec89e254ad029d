#include "compat/TokenStream.h"

namespace {

std::string Describe(const Token &token)
{
    switch (token.kind) {
    case TokenKind::Word:
        return "identifier";
    case TokenKind::Text:
        return Quoted("\"");
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

void TokenStream::Expect(std::initializer_list<std::string_view> phrase)
{
    for (const std::string_view wanted : phrase) {
        if (IsAt(TokenKind::Text) || token.text != wanted) {
            FailExpected(Quoted(wanted));
        }
        Advance();
    }
}

std::string TokenStream::ExpectText()
{
    if (!IsAt(TokenKind::Text)) {
        FailExpected("string");
    }
    std::string text = token.text;
    Advance();
    return text;
}

void TokenStream::ExpectEndOfLine()
{
    if (!IsAt(TokenKind::EndOfLine) && !IsAt(TokenKind::EndOfScript)) {
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
        token = {};
    }
}

void TokenStream::FailExpected(std::string_view what)
{
    Fail(true, {Unexpected, "Expected " + std::string(what) + " but found " + Describe(token) + "."});
}
