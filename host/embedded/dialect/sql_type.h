#pragma once

#include <string>

#include "host/embedded/dialect/syntax.h"
#include "host/embedded/field_type.h"

namespace tavrin::host::dialect {

enum class TypeKind { Int, Float, Money, DateTime, SmallDateTime, Text };

/// A column's or an expression's type.
struct SqlType {
    TypeKind kind = TypeKind::Text;
    int length = 0;  ///< text only: UTF-16 units
    bool operator==(const SqlType&) const = default;
};

bool IsNumber(SqlType type);
bool IsDate(SqlType type);
bool IsText(SqlType type);

/// Where a type is named decides how long a text without a length is: 1 in a column, 30 in CONVERT.
enum class TypeUse { Column, Conversion };

/// \throws data::Error for an unknown type, or one that this dialect has not learned.
SqlType ResolveType(const TypeName& name, TypeUse use);

/// As it is declared: "float", "nvarchar(50)".
std::string Declaration(SqlType type);

/// Bare name, as messages give it.
std::string KindName(SqlType type);

FieldInfo DescribeField(std::string name, SqlType type);

}  // namespace tavrin::host::dialect
