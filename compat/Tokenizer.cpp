#include "compat/Tokenizer.h"

#include <algorithm>

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view continuationMark = "\xC2\xAC";
constexpr std::string_view symbols = "{}(),:&";

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

Tokenizer::Tokenizer(std::string_view text) : source(text)
{
    if (StartsWith(byteOrderMark)) {
        nPosition = byteOrderMark.size();
    }
}

char Tokenizer::Peek(std::size_t nAhead) const
{
    return nPosition + nAhead < source.size() ? source[nPosition + nAhead] : '\0';
}

bool Tokenizer::StartsWith(std::string_view text) const
{
    return source.substr(nPosition).starts_with(text);
}

void Tokenizer::Fail(SourceRange range, int number, std::string text)
{
    if (!error) {
        error = {true, range, {number, std::move(text)}};
    }
    nPosition = source.size();
}

bool Tokenizer::SkipLineEnd()
{
    if (StartsWith("\r\n")) {
        nPosition += 2;
        return true;
    }
    if (Peek() == '\n' || Peek() == '\r') {
        ++nPosition;
        return true;
    }
    return false;
}

void Tokenizer::SkipSpace()
{
    for (;;) {
        if (Peek() == ' ' || Peek() == '\t') {
            ++nPosition;
        } else if (StartsWith("--") || Peek() == '#') {
            nPosition = std::min(source.find_first_of("\r\n", nPosition), source.size());
        } else if (StartsWith("(*")) {
            SkipBlockComment();
        } else if (StartsWith(continuationMark)) {
            SkipContinuation();
        } else {
            return;
        }
    }
}

void Tokenizer::SkipBlockComment()
{
    const std::size_t nStart = nPosition;
    std::size_t nDepth = 0;
    do {
        if (StartsWith("(*")) {
            ++nDepth;
            nPosition += 2;
        } else if (StartsWith("*)")) {
            --nDepth;
            nPosition += 2;
        } else {
            ++nPosition;
        }
    } while (nDepth > 0 && nPosition < source.size());
    if (nDepth > 0) {
        Fail({nStart, source.size()}, Unexpected, "Expected \"*)\" but found end of script.");
    }
}

void Tokenizer::SkipContinuation()
{
    const std::size_t nStart = nPosition;
    nPosition += continuationMark.size();
    while (Peek() == ' ' || Peek() == '\t') {
        ++nPosition;
    }
    if (!SkipLineEnd()) {
        Fail({nStart, nPosition}, Unexpected, "Expected end of line after the continuation mark.");
    }
}

void Tokenizer::RefuseNeighbour(std::string_view after)
{
    const bool bText = Peek() == '"';
    if (bText || IsLetter(Peek()) || IsDigit(Peek())) {
        const std::string_view what = bText ? "\"\"\"" : IsDigit(Peek()) ? "number" : "identifier";
        Fail({nPosition, nPosition + 1}, WrongNeighbour,
             "A " + std::string(what) + " can't go after this " + std::string(after) + ".");
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

Token Tokenizer::Number()
{
    const std::size_t nStart = nPosition;
    while (IsDigit(Peek()) || (Peek() == '.' && IsDigit(Peek(1)))) {
        ++nPosition;
    }
    Token token = {
        TokenKind::Number, {nStart, nPosition}, std::string(source.substr(nStart, nPosition - nStart))};
    RefuseNeighbour("number");
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
        Fail({nPosition - 1, nPosition}, Unexpected, "Expected \"\"\" but found unknown token.");
    } else if (Peek() != '"') {
        Fail({token.range.nBegin, nPosition}, Unexpected, "Expected \"\"\" but found end of script.");
    } else {
        ++nPosition;
        RefuseNeighbour("\"\"\"");
    }
    return token;
}

Token Tokenizer::Symbol()
{
    const SourceRange range = {nPosition, nPosition + 1};
    if (symbols.find(Peek()) == std::string_view::npos) {
        Fail(range, Unexpected, "Expected end of line but found unknown token.");
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
    } else if (IsDigit(Peek())) {
        token = Number();
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
