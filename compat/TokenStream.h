#pragma once

#include "compat/Tokenizer.h"

#include <initializer_list>

/// The tokens of a script, one of them in view, and what a parser asks of them. After the first error the
/// script is at its end, so that every loop over it ends too.
class TokenStream
{
public:
    explicit TokenStream(std::string_view source);

    const Token &Here() const { return token; }
    /// The end of the token before this one.
    std::size_t LastEnd() const { return nLastEnd; }
    bool IsAt(TokenKind kind) const { return token.kind == kind; }
    bool IsAtWord(std::string_view word) const { return IsAt(TokenKind::Word) && token.text == word; }

    void Advance();
    /// Passes these words and symbols, or fails at the first that is missing.
    void Expect(std::initializer_list<std::string_view> phrase);
    /// Passes a string: its content.
    std::string ExpectText();
    void ExpectEndOfLine();

    void Fail(bool bSyntax, Failure failure);
    /// "Expected WHAT but found ..."
    void FailExpected(std::string_view what);
    const ScriptError &Error() const;

private:
    Tokenizer tokenizer;
    Token token;
    std::size_t nLastEnd = 0;
    ScriptError error;
};

std::string Quoted(std::string_view text);
