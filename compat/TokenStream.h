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
    bool IsAtWord(std::string_view word) const;
    bool IsAtSymbol(std::string_view symbol) const;

    void Advance();
    bool SkipWord(std::string_view word);
    bool SkipSymbol(std::string_view symbol);
    void Expect(std::initializer_list<std::string_view> words);
    void ExpectSymbol(std::string_view symbol);
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
