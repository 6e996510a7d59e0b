#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavrin::host::dialect {

enum class TokenKind { Word, QuotedName, Text, NationalText, Number, Symbol, End };

struct Token {
    TokenKind kind = TokenKind::End;
    std::string text;  ///< without brackets and quotes, doubled ones undone
};

/// Cuts a statement into tokens; the last one is End.
/// \throws data::Error for an unclosed quote or bracket, an empty or overlong name, or a comment.
std::vector<Token> Tokenize(std::string_view statement);

/// Words that cannot be a name unless they are bracketed.
bool IsReserved(std::string_view word);

/// ASCII upper case, in which keywords and functions are compared.
std::string UpperAscii(std::string_view text);

}  // namespace tavrin::host::dialect
