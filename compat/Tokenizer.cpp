#include "compat/Tokenizer.h"

#include <algorithm>

namespace {

constexpr std::string_view symbols = "{}:,";

// Not those of <cctype>: the language does not change with the locale.
bool IsLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}
bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}
char ToLower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

void Tokenizer::Fail(SourceRange range, std::string text)
{
    error = {true, range, {Unexpected, std::move(text)}};
    nPosition = source.size();
}

bool Tokenizer::SkipLineEnd()
{
    const std::size_t nLength = StartsWith("\r\n") ? 2 : Peek() == '\n' || Peek() == '\r' ? 1 : 0;
    nPosition += nLength;
    return nLength > 0;
}

void Tokenizer::SkipSpace()
{
    while (Peek() == ' ' || Peek() == '\t') {
        ++nPosition;
    }
    if (StartsWith("--") || StartsWith("#")) {
        nPosition = std::min(source.find_first_of("\r\n", nPosition), source.size());
    }
}

Token Tokenizer::Word()
{
    Token token = {TokenKind::Word, {nPosition, nPosition}, {}};
    while (IsLetter(Peek()) || IsDigit(Peek())) {
        token.text += ToLower(source[nPosition++]);
    }
    return token;
}

Token Tokenizer::Text()
{
    Token token = {TokenKind::Text, {nPosition, nPosition}, {}};
    ++nPosition;
    bool bKnown = true;
    while (bKnown && nPosition < source.size() && Peek() != '"') {
        char c = source[nPosition++];
        if (c == '\\') {
            constexpr std::string_view escapes = "\"\\nrt";
            constexpr std::string_view meanings = "\"\\\n\r\t";
            const std::size_t nEscape = escapes.find(Peek());
            bKnown = nEscape != std::string_view::npos;
            c = bKnown ? meanings[nEscape] : c;
            nPosition += bKnown ? 1 : 0;
        } else if (c == '\0') {
            // No command and no file name can hold it: it would silently cut what follows.
            bKnown = false;
        }
        token.text += c;
    }
    if (!bKnown) {
        Fail({nPosition - 1, nPosition}, "Expected \"\"\" but found unknown token.");
    } else if (Peek() != '"') {
        Fail({token.range.nBegin, nPosition}, "Expected \"\"\" but found end of script.");
    } else {
        ++nPosition;
    }
    return token;
}

Token Tokenizer::Symbol()
{
    const SourceRange range = {nPosition, nPosition + 1};
    if (symbols.find(Peek()) == std::string_view::npos) {
        Fail(range, "Expected end of line but found unknown token.");
        return {};
    }
    return {TokenKind::Symbol, range, std::string(1, source[nPosition++])};
}

Token Tokenizer::Next()
{
    SkipSpace();
    Token token = {TokenKind::EndOfScript, {nPosition, nPosition}, {}};
    if (nPosition >= source.size()) {
        return token;
    }
    if (SkipLineEnd()) {
        token.kind = TokenKind::EndOfLine;
    } else if (IsLetter(Peek())) {
        token = Word();
    } else if (Peek() == '"') {
        token = Text();
    } else {
        token = Symbol();
    }
    if (error) {
        return {};
    }
    token.range.nEnd = nPosition;
    return token;
}
