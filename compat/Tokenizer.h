#pragma once

#include "compat/ScriptError.h"

#include <string_view>

enum class TokenKind
{
    Word,
    Text,
    Number,
    Symbol,
    EndOfLine,
    EndOfScript
};

struct Token
{
    TokenKind kind = TokenKind::EndOfScript;
    SourceRange range;
    /// Word: in lower case. Text: without quotes, escapes resolved. Number and Symbol: as written.
    std::string text;
};

/// Cuts AppleScript source (UTF-8; lines ended by LF, CR or CRLF) into tokens, one at a time. Comments and
/// continuation marks are passed over. After an error only EndOfScript comes.
class Tokenizer
{
public:
    explicit Tokenizer(std::string_view source);

    Token Next();

    const ScriptError &Error() const { return error; }

private:
    char Peek(std::size_t nAhead = 0) const;
    bool StartsWith(std::string_view text) const;
    /// Passes one line end, if one is here.
    bool SkipLineEnd();
    /// Passes blanks, comments and continued line ends.
    void SkipSpace();
    void SkipBlockComment();
    void SkipContinuation();
    Token Word();
    Token Number();
    Token Text();
    Token Symbol();
    /// Sets the error, unless there is one, and jumps to the end of the source.
    void Fail(SourceRange range, int number, std::string text);
    /// "A WHAT can't go after this AFTER": two things that need something between them.
    void RefuseNeighbour(std::string_view after);

    const std::string_view source;
    std::size_t nPosition = 0;
    ScriptError error;
};
