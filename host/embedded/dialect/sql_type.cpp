#include "host/embedded/dialect/sql_type.h"

#include <algorithm>
#include <array>
#include <utility>

#include "host/embedded/dialect/provider_error.h"

namespace tavrin::host::dialect {
namespace {

constexpr int LongestText = 4000;

constexpr std::array<std::pair<std::string_view, TypeKind>, 7> LearnedTypes{
    {{"int", TypeKind::Int},
     {"float", TypeKind::Float},
     {"money", TypeKind::Money},
     {"datetime", TypeKind::DateTime},
     {"smalldatetime", TypeKind::SmallDateTime},
     {"nvarchar", TypeKind::Text},
     {"varchar", TypeKind::Text}}};

constexpr auto UnlearnedTypes = std::to_array<std::string_view>(
    {"bigint",     "binary",  "bit",   "char",  "date",      "datetime2", "datetimeoffset",
     "decimal",    "image",   "nchar", "ntext", "numeric",   "real",      "smallint",
     "smallmoney", "sysname", "text",  "time",  "timestamp", "tinyint",   "uniqueidentifier",
     "varbinary",  "xml"});

int TextLength(const TypeName& name, TypeUse use) {
    const int length = name.length.value_or(use == TypeUse::Column ? 1 : 30);
    if (length < 1 || length > LongestText) throw NotUnderstood("the text length " + std::to_string(length));
    return length;
}

}  // namespace

bool IsNumber(SqlType type) {
    return type.kind == TypeKind::Int || type.kind == TypeKind::Float || type.kind == TypeKind::Money;
}
bool IsDate(SqlType type) {
    return type.kind == TypeKind::DateTime || type.kind == TypeKind::SmallDateTime;
}
bool IsText(SqlType type) {
    return type.kind == TypeKind::Text;
}

SqlType ResolveType(const TypeName& name, TypeUse use) {
    for (const auto& [text, kind] : LearnedTypes) {
        if (text != name.name) continue;
        if (kind == TypeKind::Text) return {kind, TextLength(name, use)};
        if (name.length) throw NotUnderstood("the type " + name.name + " with a length");
        return {kind, 0};
    }
    if (std::find(UnlearnedTypes.begin(), UnlearnedTypes.end(), name.name) != UnlearnedTypes.end()) {
        throw NotUnderstood("the type " + name.name);
    }
    throw UnknownType(name.name);
}

std::string KindName(SqlType type) {
    switch (type.kind) {
        case TypeKind::Int:
            return "int";
        case TypeKind::Float:
            return "float";
        case TypeKind::Money:
            return "money";
        case TypeKind::DateTime:
            return "datetime";
        case TypeKind::SmallDateTime:
            return "smalldatetime";
        case TypeKind::Text:
            return "nvarchar";
    }
    return {};
}

std::string Declaration(SqlType type) {
    const std::string name = KindName(type);
    return IsText(type) ? name + "(" + std::to_string(type.length) + ")" : name;
}

FieldInfo DescribeField(std::string name, SqlType type) {
    switch (type.kind) {
        case TypeKind::Int:
            return {std::move(name), FieldType::Integer, 4};
        case TypeKind::Float:
            return {std::move(name), FieldType::Double, 8};
        case TypeKind::Money:
            return {std::move(name), FieldType::Money, 8};
        case TypeKind::DateTime:
        case TypeKind::SmallDateTime:
            return {std::move(name), FieldType::DateTime, 16};
        case TypeKind::Text:
            break;
    }
    return {std::move(name), FieldType::Text, type.length};
}

}  // namespace tavrin::host::dialect
