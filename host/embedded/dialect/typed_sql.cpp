#include "host/embedded/dialect/typed_sql.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "host/embedded/dialect/date_literal.h"
#include "host/embedded/dialect/function_names.h"
#include "host/embedded/dialect/provider_error.h"
#include "host/embedded/money_text.h"
#include "host/embedded/text_rules.h"

namespace tavrin::host::dialect {
namespace {

template <class Number>
std::errc ParseWhole(std::string_view text, Number& number) {
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return end == text.data() + text.size() ? error : std::errc::invalid_argument;
}

double ParseNumber(const std::string& text) {
    double number = 0;
    const std::errc error = ParseWhole(text, number);
    if (error == std::errc::invalid_argument || !std::isfinite(number)) throw BadNumber(text);
    if (error == std::errc::result_out_of_range) throw NumberOutOfRange("float");
    return number;
}

std::int64_t InIntRange(double number) {
    const double whole = std::trunc(number);
    const bool inRange = whole >= std::numeric_limits<std::int32_t>::min() &&
                         whole <= std::numeric_limits<std::int32_t>::max();
    if (!inRange) throw NumberOutOfRange("int");
    return static_cast<std::int64_t>(whole);
}

bool SameFamily(SqlType left, SqlType right) {
    return (IsNumber(left) && IsNumber(right)) || (IsDate(left) && IsDate(right)) ||
           (IsText(left) && IsText(right));
}

[[noreturn]] void ThrowNoConversion(SqlType from, SqlType to) {
    throw NotUnderstood("a conversion of " + KindName(from) + " to " + KindName(to));
}

Sql NumberParameter(const std::string& digits, SqlType target) {
    const double number = ParseNumber(digits);
    if (target.kind == TypeKind::Int) return Parameter(InIntRange(number));
    if (target.kind != TypeKind::Money) return Parameter(number);
    const std::optional<double> money = ToMoney(number);
    if (!money) throw NumberOutOfRange("money");
    return Parameter(*money);
}

// A text that stands for a whole number must not have decimals; a number that becomes whole loses them.
Sql NumberFromText(const std::string& text, SqlType target) {
    std::int64_t whole = 0;
    const bool isWhole = ParseWhole(text, whole) != std::errc::invalid_argument;
    if (target.kind == TypeKind::Int && !isWhole) throw BadNumber(text);
    return NumberParameter(text, target);
}

std::string WholeDigits(const std::string& digits) {
    std::int64_t whole = 0;
    if (ParseWhole(digits, whole) != std::errc()) throw NotUnderstood("the number " + digits + " as text");
    return std::to_string(whole);
}

Sql LiteralAs(const TypedSql& value, SqlType target) {
    if (value.literal == Literal::Null) return value.sql;
    if (value.literal == Literal::Number) {
        if (IsNumber(target)) return NumberParameter(value.literalText, target);
        if (IsText(target)) return Parameter(WholeDigits(value.literalText));
        ThrowNoConversion(value.type, target);
    }
    if (IsDate(target)) return Parameter(ParseDateLiteral(value.literalText, target.kind));
    if (IsNumber(target)) return NumberFromText(value.literalText, target);
    return value.sql;
}

Sql ExpressionAs(const TypedSql& value, SqlType target) {
    if (value.type.kind == target.kind) return value.sql;
    if (!SameFamily(value.type, target)) ThrowNoConversion(value.type, target);
    if (target.kind == TypeKind::Money) return FunctionCall(function_name::Money, {value.sql});
    if (target.kind == TypeKind::Float || target.kind == TypeKind::DateTime) return value.sql;
    ThrowNoConversion(value.type, target);
}

}  // namespace

Sql& Sql::operator+=(std::string_view more) {
    text += more;
    return *this;
}

Sql& Sql::operator+=(const Sql& more) {
    text += more.text;
    parameters.insert(parameters.end(), more.parameters.begin(), more.parameters.end());
    return *this;
}

Sql Parameter(data::Value value) {
    Sql sql{"?", {}};
    sql.parameters.push_back(std::move(value));
    return sql;
}

Sql FunctionCall(std::string_view name, std::initializer_list<Sql> arguments) {
    Sql call{std::string(name) + "(", {}};
    call += Joined(arguments, ", ");
    call += ")";
    return call;
}

Sql Joined(const std::vector<Sql>& pieces, std::string_view separator) {
    Sql joined;
    for (const Sql& piece : pieces) {
        if (&piece != &pieces.front()) joined += separator;
        joined += piece;
    }
    return joined;
}

std::string QuotedName(std::string_view name) {
    std::string quoted = "\"";
    for (const char character : name) {
        if (character == '"') quoted += '"';
        quoted += character;
    }
    return quoted + '"';
}

TypedSql TextValue(const std::string& text) {
    const int length = static_cast<int>(Utf16Length(text));
    return {Parameter(text), {TypeKind::Text, length}, Literal::Text, text};
}

TypedSql NumberValue(const std::string& digits) {
    std::int32_t whole = 0;
    const bool isInt = ParseWhole(digits, whole) == std::errc();
    const SqlType type{isInt ? TypeKind::Int : TypeKind::Float, 0};
    return {NumberParameter(digits, type), type, Literal::Number, digits};
}

TypedSql NullValue() {
    return {Parameter(data::Null{}), {TypeKind::Int, 0}, Literal::Null, {}};
}

TypedSql Converted(const TypedSql& value, SqlType target) {
    Sql sql = value.literal == Literal::None ? ExpressionAs(value, target) : LiteralAs(value, target);
    if (IsText(target) && IsText(value.type)) target.length = value.type.length;
    return {std::move(sql), target, Literal::None, {}};
}

Sql Stored(const TypedSql& value, SqlType column) {
    const bool isNull = value.literal == Literal::Null;
    Sql sql = Converted(value, column).sql;
    if (isNull) return sql;
    if (IsText(column)) {
        return FunctionCall(function_name::FitText, {sql, Parameter(std::int64_t{column.length})});
    }
    if (column.kind == TypeKind::Money) return FunctionCall(function_name::Money, {sql});
    return sql;
}

void Unify(TypedSql& left, TypedSql& right) {
    if (left.literal == Literal::Null || right.literal == Literal::Null) return;
    if (left.literal == Literal::Text && !IsText(right.type)) left = Converted(left, right.type);
    if (right.literal == Literal::Text && !IsText(left.type)) right = Converted(right, left.type);
    if (SameFamily(left.type, right.type)) return;
    throw NotUnderstood("a comparison of " + KindName(left.type) + " with " + KindName(right.type));
}

}  // namespace tavrin::host::dialect
