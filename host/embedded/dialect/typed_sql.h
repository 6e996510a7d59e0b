#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "data/value.h"
#include "host/embedded/dialect/sql_type.h"

namespace tavrin::host::dialect {

/// A piece of a translated statement. Literals are never part of its text: each is a "?" and a parameter.
struct Sql {
    std::string text;
    std::vector<data::Value> parameters;

    Sql& operator+=(std::string_view more);
    Sql& operator+=(const Sql& more);
    bool operator==(const Sql&) const = default;
};

Sql Parameter(data::Value value);
/// "name(argument, argument)"
Sql FunctionCall(std::string_view name, std::initializer_list<Sql> arguments);
Sql Joined(const std::vector<Sql>& pieces, std::string_view separator);
/// A table's or column's name, quoted for the engine.
std::string QuotedName(std::string_view name);

enum class Literal { None, Text, Number, Null };

/// A translated expression with its type. A literal keeps its text, because what stands beside it may give it
/// another type: '2003-05-20' is a date where a date is due.
struct TypedSql {
    Sql sql;
    SqlType type;
    Literal literal = Literal::None;
    std::string literalText;
};

TypedSql TextValue(const std::string& text);
TypedSql NumberValue(const std::string& digits);
TypedSql NullValue();

/// The value as one of the given type, where the server converts by itself. \throws data::Error 80040E07 for
/// a text that is no such date or number, NotUnderstood for conversions that this dialect has not learned.
TypedSql Converted(const TypedSql& value, SqlType target);

/// The same for a value that is written to a column: text must fit, whole numbers must be in range.
Sql Stored(const TypedSql& value, SqlType column);

/// Gives two values that are compared one type.
void Unify(TypedSql& left, TypedSql& right);

}  // namespace tavrin::host::dialect
