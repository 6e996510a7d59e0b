#include "host/embedded/dialect/expression_parser.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "host/embedded/dialect/provider_error.h"

namespace tavrin::host::dialect {
namespace {

constexpr int DeepestNesting = 100;

class Nesting {
  public:
    explicit Nesting(int& depth) : depth_(depth) {
        if (depth_ >= DeepestNesting) throw NestedTooDeeply();
        ++depth_;
    }
    ~Nesting() { --depth_; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

  private:
    int& depth_;
};

template <class Content>
ExpressionPtr MakeExpression(Content content) {
    return std::make_unique<Expression>(Expression{std::move(content)});
}

template <class Content>
ConditionPtr MakeCondition(Content content) {
    return std::make_unique<Condition>(Condition{std::move(content)});
}

ConditionPtr NegatedIf(bool negated, ConditionPtr condition) {
    return negated ? MakeCondition(NotCondition{std::move(condition)}) : std::move(condition);
}

}  // namespace

ConditionPtr ExpressionParser::ParseCondition() {
    const Nesting nesting(depth_);
    ConditionPtr first = ParseConjunction();
    if (!tokens_.AtKeyword("OR")) return first;
    OrCondition alternatives;
    alternatives.terms.push_back(std::move(first));
    while (tokens_.Accept("OR"))
        alternatives.terms.push_back(ParseConjunction());
    return MakeCondition(std::move(alternatives));
}

ConditionPtr ExpressionParser::ParseConjunction() {
    ConditionPtr first = ParseNegation();
    if (!tokens_.AtKeyword("AND")) return first;
    AndCondition terms;
    terms.terms.push_back(std::move(first));
    while (tokens_.Accept("AND"))
        terms.terms.push_back(ParseNegation());
    return MakeCondition(std::move(terms));
}

ConditionPtr ExpressionParser::ParseNegation() {
    const Nesting nesting(depth_);
    if (tokens_.Accept("NOT")) return MakeCondition(NotCondition{ParseNegation()});
    if (!AtConditionInParentheses()) return ParsePredicate();
    tokens_.ExpectSymbol("(");
    ConditionPtr condition = ParseCondition();
    tokens_.ExpectSymbol(")");
    return condition;
}

// "(a) = 1" begins with an expression, "(a = 1) AND ..." with a condition: what follows the ")" tells.
bool ExpressionParser::AtConditionInParentheses() const {
    if (!tokens_.AtSymbol("(")) return false;
    static constexpr auto Symbols = std::to_array<std::string_view>({"=", "<", "<=", ">", ">=", "<>", "!="});
    static constexpr auto Keywords = std::to_array<std::string_view>({"LIKE", "BETWEEN", "IN", "IS", "NOT"});
    const std::size_t after = tokens_.ParenthesisLength();
    const auto atSymbol = [&](std::string_view symbol) { return tokens_.AtSymbol(symbol, after); };
    const auto atKeyword = [&](std::string_view keyword) { return tokens_.AtKeyword(keyword, after); };
    return std::none_of(Symbols.begin(), Symbols.end(), atSymbol) &&
           std::none_of(Keywords.begin(), Keywords.end(), atKeyword);
}

ConditionPtr ExpressionParser::ParsePredicate() {
    ExpressionPtr left = ParseExpression();
    if (tokens_.AtKeyword("IS")) return ParseNullTest(std::move(left));
    const bool negated = tokens_.Accept("NOT");
    if (tokens_.Accept("LIKE")) return NegatedIf(negated, ParseLike(std::move(left)));
    if (tokens_.Accept("BETWEEN")) return NegatedIf(negated, ParseBetween(std::move(left)));
    if (tokens_.Accept("IN")) return NegatedIf(negated, ParseIn(std::move(left)));
    if (negated) tokens_.ThrowUnexpected();
    return ParseComparison(std::move(left));
}

ConditionPtr ExpressionParser::ParseLike(ExpressionPtr text) {
    return MakeCondition(LikeCondition{std::move(text), ParseExpression()});
}

ConditionPtr ExpressionParser::ParseBetween(ExpressionPtr value) {
    ExpressionPtr low = ParseExpression();
    tokens_.Expect("AND");
    return MakeCondition(BetweenCondition{std::move(value), std::move(low), ParseExpression()});
}

ConditionPtr ExpressionParser::ParseIn(ExpressionPtr value) {
    InCondition in{std::move(value), {}};
    tokens_.ExpectSymbol("(");
    if (tokens_.AtKeyword("SELECT")) throw NotUnderstood("a query inside a query");
    do {
        in.list.push_back(ParseExpression());
    } while (tokens_.AcceptSymbol(","));
    tokens_.ExpectSymbol(")");
    return MakeCondition(std::move(in));
}

ConditionPtr ExpressionParser::ParseNullTest(ExpressionPtr value) {
    tokens_.Expect("IS");
    const bool negated = tokens_.Accept("NOT");
    tokens_.Expect("NULL");
    return NegatedIf(negated, MakeCondition(NullCondition{std::move(value)}));
}

ConditionPtr ExpressionParser::ParseComparison(ExpressionPtr left) {
    static constexpr auto Comparisons =
        std::to_array<std::string_view>({"=", "<", "<=", ">", ">=", "<>", "!="});
    const std::string symbol = tokens_.Peek().text;
    const bool known = tokens_.Peek().kind == TokenKind::Symbol &&
                       std::find(Comparisons.begin(), Comparisons.end(), symbol) != Comparisons.end();
    if (!known) tokens_.ThrowUnexpected();
    tokens_.Take();
    return MakeCondition(Comparison{symbol == "!=" ? "<>" : symbol, std::move(left), ParseExpression()});
}

ExpressionPtr ExpressionParser::ParseExpression() {
    const Nesting nesting(depth_);
    switch (tokens_.Peek().kind) {
        case TokenKind::Text:
            return MakeExpression(TextLiteral{ThroughCodePage(tokens_.Take().text, page_)});
        case TokenKind::NationalText:
            return MakeExpression(TextLiteral{tokens_.Take().text});
        case TokenKind::Number:
            return MakeExpression(NumberLiteral{tokens_.Take().text});
        case TokenKind::Symbol:
            return tokens_.AtSymbol("(") ? ParseParenthesized() : ParseSigned();
        case TokenKind::QuotedName:
            return ParseColumn();
        case TokenKind::Word:
        case TokenKind::End:
            break;
    }
    if (tokens_.Accept("NULL")) return MakeExpression(NullLiteral{});
    if (tokens_.AtKeyword("CONVERT")) return ParseConversion();
    if (tokens_.AtName() && tokens_.AtSymbol("(", 1)) return ParseCall();
    return ParseColumn();
}

ExpressionPtr ExpressionParser::ParseSigned() {
    const bool negative = tokens_.AtSymbol("-");
    const bool sign = negative || tokens_.AtSymbol("+");
    if (!sign) tokens_.ThrowUnexpected();
    if (tokens_.Peek(1).kind != TokenKind::Number) throw NotUnderstood("'" + tokens_.Peek().text + "'");
    tokens_.Take();
    const std::string digits = tokens_.Take().text;
    return MakeExpression(NumberLiteral{negative ? "-" + digits : digits});
}

ExpressionPtr ExpressionParser::ParseParenthesized() {
    tokens_.ExpectSymbol("(");
    if (tokens_.AtKeyword("SELECT")) throw NotUnderstood("a query inside a query");
    ExpressionPtr expression = ParseExpression();
    tokens_.ExpectSymbol(")");
    return expression;
}

ExpressionPtr ExpressionParser::ParseConversion() {
    tokens_.Expect("CONVERT");
    tokens_.ExpectSymbol("(");
    Conversion conversion;
    conversion.type = ParseType();
    tokens_.ExpectSymbol(",");
    conversion.operand = ParseExpression();
    if (tokens_.AcceptSymbol(",")) conversion.style = ParseSmallNumber();
    tokens_.ExpectSymbol(")");
    return MakeExpression(std::move(conversion));
}

ExpressionPtr ExpressionParser::ParseCall() {
    Call call;
    call.function = UpperAscii(tokens_.ExpectName());
    tokens_.ExpectSymbol("(");
    if (tokens_.AtKeyword("DISTINCT")) throw NotUnderstood("DISTINCT inside a function");
    if (tokens_.AtSymbol("*") && tokens_.AtSymbol(")", 1)) {
        tokens_.Take();
        call.star = true;
    } else if (!tokens_.AtSymbol(")")) {
        do {
            call.arguments.push_back(ParseExpression());
        } while (tokens_.AcceptSymbol(","));
    }
    tokens_.ExpectSymbol(")");
    return MakeExpression(std::move(call));
}

ExpressionPtr ExpressionParser::ParseColumn() {
    ColumnName column;
    column.qualifier = tokens_.ExpectObjectName();
    column.name = column.qualifier.parts.back();
    column.qualifier.parts.pop_back();
    return MakeExpression(std::move(column));
}

TypeName ExpressionParser::ParseType() {
    TypeName type;
    std::string name = UpperAscii(tokens_.ExpectName());
    std::transform(name.begin(), name.end(), name.begin(), [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
    });
    type.name = name;
    if (tokens_.AcceptSymbol("(")) {
        if (tokens_.AtKeyword("MAX")) throw NotUnderstood("the length MAX");
        type.length = ParseSmallNumber();
        if (tokens_.AtSymbol(",")) throw NotUnderstood("the type " + type.name + " with a precision");
        tokens_.ExpectSymbol(")");
    }
    return type;
}

int ExpressionParser::ParseSmallNumber() {
    const Token& token = tokens_.Peek();
    int number = 0;
    const char* const begin = token.text.data();
    const auto [end, error] = std::from_chars(begin, begin + token.text.size(), number);
    const bool whole = error == std::errc() && end == begin + token.text.size();
    if (token.kind != TokenKind::Number || !whole) tokens_.ThrowUnexpected();
    tokens_.Take();
    return number;
}

}  // namespace tavrin::host::dialect
