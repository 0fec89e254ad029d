#pragma once

#include "compat/ScriptError.h"

#include <string_view>

enum class TokenKind
{
    Word,
    Text,
    Symbol,
    EndOfLine,
    EndOfScript
};

struct Token
{
    TokenKind kind = TokenKind::EndOfScript;
    SourceRange range;
    /// Word: in lower case. Text: without quotes, escapes resolved. Symbol: as written.
    std::string text;
};

/// Cuts AppleScript source (UTF-8; lines ended by LF, CR or CRLF) into tokens, one at a time. Comments are
/// passed over. After an error only EndOfScript comes.
class Tokenizer
{
public:
    explicit Tokenizer(std::string_view text) : source(text) {}

    Token Next();

    const ScriptError &Error() const { return error; }

private:
    char Peek() const { return nPosition < source.size() ? source[nPosition] : '\0'; }
    bool StartsWith(std::string_view text) const { return source.substr(nPosition).starts_with(text); }
    /// Passes one line end, if one is here.
    bool SkipLineEnd();
    /// Passes blanks and comments.
    void SkipSpace();
    Token Word();
    Token Text();
    Token Symbol();
    /// Sets the error and jumps to the end of the source.
    void Fail(SourceRange range, std::string text);

    const std::string_view source;
    std::size_t nPosition = 0;
    ScriptError error;
};
