#include "host/embedded/dialect/token_stream.h"

#include <algorithm>
#include <array>

#include "host/embedded/dialect/provider_error.h"

namespace tavrin::host::dialect {
namespace {

// What the server's language has and this dialect has not.
bool IsUnlearnedKeyword(std::string_view word) {
    static constexpr auto Words = std::to_array<std::string_view>(
        {"ALL",     "ANY",    "CASE",    "CHECK",  "COLLATE",    "CONSTRAINT", "CROSS",
         "DEFAULT", "EXISTS", "FOR",     "FULL",   "HAVING",     "IDENTITY",   "INNER",
         "INTO",    "JOIN",   "LEFT",    "OUTER",  "REFERENCES", "RIGHT",      "TOP",
         "UNION",   "WITH",   "FOREIGN", "OUTPUT", "ESCAPE",     "OVER",       "OPTION"});
    return std::find(Words.begin(), Words.end(), UpperAscii(word)) != Words.end();
}

bool IsUnlearnedSymbol(std::string_view symbol) {
    return symbol == "+" || symbol == "-" || symbol == "*" || symbol == "/" || symbol == "%";
}

}  // namespace

const Token& TokenStream::Peek(std::size_t ahead) const {
    return tokens_[std::min(position_ + ahead, tokens_.size() - 1)];
}

Token TokenStream::Take() {
    Token token = Peek();
    if (position_ + 1 < tokens_.size()) ++position_;
    return token;
}

bool TokenStream::AtKeyword(std::string_view upper, std::size_t ahead) const {
    const Token& token = Peek(ahead);
    return token.kind == TokenKind::Word && UpperAscii(token.text) == upper;
}

bool TokenStream::AtSymbol(std::string_view symbol, std::size_t ahead) const {
    const Token& token = Peek(ahead);
    return token.kind == TokenKind::Symbol && token.text == symbol;
}

bool TokenStream::AtName() const {
    const Token& token = Peek();
    return token.kind == TokenKind::QuotedName || (token.kind == TokenKind::Word && !IsReserved(token.text));
}

bool TokenStream::AtText() const {
    return Peek().kind == TokenKind::Text || Peek().kind == TokenKind::NationalText;
}

bool TokenStream::Accept(std::string_view keyword) {
    if (!AtKeyword(keyword)) return false;
    Take();
    return true;
}

bool TokenStream::AcceptSymbol(std::string_view symbol) {
    if (!AtSymbol(symbol)) return false;
    Take();
    return true;
}

void TokenStream::Expect(std::string_view keyword) {
    if (!Accept(keyword)) ThrowUnexpected();
}

void TokenStream::ExpectSymbol(std::string_view symbol) {
    if (!AcceptSymbol(symbol)) ThrowUnexpected();
}

std::string TokenStream::ExpectName() {
    if (!AtName()) ThrowUnexpected();
    return Take().text;
}

ObjectName TokenStream::ExpectObjectName() {
    ObjectName name;
    name.parts.push_back(ExpectName());
    while (AcceptSymbol("."))
        name.parts.push_back(ExpectName());
    return name;
}

std::size_t TokenStream::ParenthesisLength() const {
    std::size_t length = 0;
    std::size_t depth = 0;
    do {
        if (AtSymbol("(", length)) ++depth;
        if (AtSymbol(")", length)) --depth;
        ++length;
    } while (depth > 0 && position_ + length < tokens_.size());
    return length;
}

void TokenStream::ThrowUnexpected() const {
    const Token& token = Peek();
    if (token.kind == TokenKind::End) {
        throw IncorrectSyntax(position_ > 0 ? tokens_[position_ - 1].text : std::string());
    }
    const bool unlearned = (token.kind == TokenKind::Word && IsUnlearnedKeyword(token.text)) ||
                           (token.kind == TokenKind::Symbol && IsUnlearnedSymbol(token.text));
    if (unlearned) throw NotUnderstood("'" + token.text + "'");
    const bool keyword = token.kind == TokenKind::Word && IsReserved(token.text);
    throw keyword ? IncorrectSyntaxNearKeyword(token.text) : IncorrectSyntax(token.text);
}

}  // namespace tavrin::host::dialect
