#include <algorithm>
#include <array>

#include "host/embedded/dialect/provider_error.h"
#include "host/embedded/dialect/token.h"
#include "host/embedded/text_rules.h"

namespace tavrin::host::dialect {
namespace {

constexpr std::size_t LongestName = 128;

bool IsBlank(char character) {
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}
bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}
bool IsWordStart(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           character == '_' || character == '#' || character == '@' ||
           static_cast<unsigned char>(character) >= 0x80;
}
bool IsWordPart(char character) {
    return IsWordStart(character) || IsDigit(character) || character == '$';
}

class Tokenizer {
  public:
    explicit Tokenizer(std::string_view statement) : rest_(statement) {}

    std::vector<Token> Run() {
        while (SkipBlanks())
            tokens_.push_back(Next());
        tokens_.push_back({TokenKind::End, {}});
        return std::move(tokens_);
    }

  private:
    bool SkipBlanks() {
        while (!rest_.empty() && IsBlank(rest_.front()))
            rest_.remove_prefix(1);
        return !rest_.empty();
    }

    Token Next() {
        const char first = rest_.front();
        const char second = rest_.size() > 1 ? rest_[1] : '\0';
        if (first == '\'') return {TokenKind::Text, TakeQuoted('\'')};
        if ((first == 'N' || first == 'n') && second == '\'') return TakeNationalText();
        if (first == '[') return {TokenKind::QuotedName, CheckedName(TakeQuoted(']'))};
        if (first == '"') return {TokenKind::QuotedName, CheckedName(TakeQuoted('"'))};
        if (IsDigit(first) || (first == '.' && IsDigit(second))) return {TokenKind::Number, TakeNumber()};
        if (IsWordStart(first)) return {TokenKind::Word, CheckedName(Take(WordLength()))};
        return {TokenKind::Symbol, TakeSymbol(first, second)};
    }

    Token TakeNationalText() {
        rest_.remove_prefix(1);
        return {TokenKind::NationalText, TakeQuoted('\'')};
    }

    // From the opening quote to the closing one; a doubled closing quote stands for itself.
    std::string TakeQuoted(char close) {
        rest_.remove_prefix(1);
        const std::string_view all = rest_;
        std::string text;
        while (!rest_.empty()) {
            const char character = rest_.front();
            rest_.remove_prefix(1);
            if (character == close) {
                if (rest_.empty() || rest_.front() != close) return text;
                rest_.remove_prefix(1);
            }
            text.push_back(character);
        }
        throw UnclosedQuote(all);
    }

    static std::string CheckedName(std::string name) {
        if (name.empty()) throw MissingName();
        if (Utf16Length(name) > LongestName) throw NameTooLong(Utf16Prefix(name, LongestName));
        if (name.find('\0') != std::string::npos) throw IncorrectSyntax(name.substr(0, name.find('\0')));
        return name;
    }

    std::size_t WordLength() const {
        return static_cast<std::size_t>(std::find_if_not(rest_.begin(), rest_.end(), IsWordPart) -
                                        rest_.begin());
    }

    std::string TakeNumber() {
        std::size_t length = DigitsFrom(0);
        if (length < rest_.size() && rest_[length] == '.') length = DigitsFrom(length + 1);
        if (length < rest_.size() && (rest_[length] == 'e' || rest_[length] == 'E')) {
            std::size_t exponent = length + 1;
            if (exponent < rest_.size() && (rest_[exponent] == '+' || rest_[exponent] == '-')) ++exponent;
            if (exponent < rest_.size() && IsDigit(rest_[exponent])) length = DigitsFrom(exponent);
        }
        return Take(length);
    }

    std::size_t DigitsFrom(std::size_t position) const {
        while (position < rest_.size() && IsDigit(rest_[position]))
            ++position;
        return position;
    }

    std::string TakeSymbol(char first, char second) {
        static constexpr std::array<std::string_view, 4> Pairs{"<=", ">=", "<>", "!="};
        if ((first == '-' && second == '-') || (first == '/' && second == '*')) {
            throw NotUnderstood("a comment");
        }
        const bool pair = std::find(Pairs.begin(), Pairs.end(), rest_.substr(0, 2)) != Pairs.end();
        return Take(pair ? 2 : 1);
    }

    std::string Take(std::size_t length) {
        std::string taken(rest_.substr(0, length));
        rest_.remove_prefix(length);
        return taken;
    }

    std::string_view rest_;
    std::vector<Token> tokens_;
};

}  // namespace

std::vector<Token> Tokenize(std::string_view statement) {
    return Tokenizer(statement).Run();
}

bool IsReserved(std::string_view word) {
    static constexpr auto Words = std::to_array<std::string_view>(
        {"ADD",     "ALL",      "ALTER",   "AND",     "ANY",    "AS",      "ASC",        "BEGIN",
         "BETWEEN", "BY",       "CASE",    "CHECK",   "COLUMN", "COMMIT",  "CONSTRAINT", "CONVERT",
         "CREATE",  "CROSS",    "DECLARE", "DEFAULT", "DELETE", "DESC",    "DISTINCT",   "DROP",
         "ELSE",    "END",      "EXEC",    "EXECUTE", "EXISTS", "FOR",     "FOREIGN",    "FROM",
         "FULL",    "GRANT",    "GROUP",   "HAVING",  "IF",     "IN",      "INDEX",      "INNER",
         "INSERT",  "INTO",     "IS",      "JOIN",    "KEY",    "LEFT",    "LIKE",       "NOT",
         "NULL",    "ON",       "OR",      "ORDER",   "OUTER",  "PRIMARY", "PROCEDURE",  "REFERENCES",
         "RIGHT",   "ROLLBACK", "SELECT",  "SET",     "TABLE",  "THEN",    "TOP",        "TRUNCATE",
         "UNION",   "UNIQUE",   "UPDATE",  "USE",     "VALUES", "VIEW",    "WHEN",       "WHERE",
         "WHILE",   "WITH"});
    return std::find(Words.begin(), Words.end(), UpperAscii(word)) != Words.end();
}

std::string UpperAscii(std::string_view text) {
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char character) {
        return character >= 'a' && character <= 'z' ? static_cast<char>(character - ('a' - 'A')) : character;
    });
    return upper;
}

}  // namespace tavrin::host::dialect
