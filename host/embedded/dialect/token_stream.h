#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/embedded/dialect/syntax.h"
#include "host/embedded/dialect/token.h"

namespace tavrin::host::dialect {

/// The parser's view of a statement's tokens: look, take, insist.
class TokenStream {
  public:
    explicit TokenStream(std::vector<Token> tokens) : tokens_(std::move(tokens)) {}

    /// Beyond the last token there is only End.
    const Token& Peek(std::size_t ahead = 0) const;
    Token Take();

    bool AtEnd() const { return Peek().kind == TokenKind::End; }
    bool AtKeyword(std::string_view upper, std::size_t ahead = 0) const;
    bool AtSymbol(std::string_view symbol, std::size_t ahead = 0) const;
    bool AtName() const;
    bool AtText() const;

    bool Accept(std::string_view keyword);
    bool AcceptSymbol(std::string_view symbol);
    void Expect(std::string_view keyword);
    void ExpectSymbol(std::string_view symbol);
    std::string ExpectName();
    ObjectName ExpectObjectName();

    /// Ahead of a "(": how many tokens up to and including its ")". Reaches the End when there is none.
    std::size_t ParenthesisLength() const;

    /// Refuses the current token: as syntax the server would refuse too, or as one that this dialect lacks.
    [[noreturn]] void ThrowUnexpected() const;

  private:
    std::vector<Token> tokens_;
    std::size_t position_ = 0;
};

}  // namespace tavrin::host::dialect
