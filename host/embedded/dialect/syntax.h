#pragma once

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tavrin::host::dialect {

// The statements as the parser understands them, before any name is looked up.

/// One to three parts: table, owner.table, database.owner.table.
struct ObjectName {
    std::vector<std::string> parts;
    std::string Text() const;  ///< the parts joined by points
};

struct TypeName {
    std::string name;  ///< in lower case
    std::optional<int> length;
};

struct Expression;
using ExpressionPtr = std::unique_ptr<Expression>;

struct ColumnName {
    ObjectName qualifier;  ///< no parts when the column stands alone
    std::string name;
    std::string Text() const;
};
struct TextLiteral {
    std::string text;
};
struct NumberLiteral {
    std::string digits;  ///< with its sign
};
struct NullLiteral {};
struct Call {
    std::string function;  ///< in upper case
    std::vector<ExpressionPtr> arguments;
    bool star = false;  ///< COUNT(*)
};
struct Conversion {
    TypeName type;
    ExpressionPtr operand;
    std::optional<int> style;
};

struct Expression {
    std::variant<ColumnName, TextLiteral, NumberLiteral, NullLiteral, Call, Conversion> content;
};

struct Condition;
using ConditionPtr = std::unique_ptr<Condition>;

struct Comparison {
    std::string comparison;  ///< = <> < <= > >=
    ExpressionPtr left;
    ExpressionPtr right;
};
struct LikeCondition {
    ExpressionPtr text;
    ExpressionPtr pattern;
};
struct BetweenCondition {
    ExpressionPtr value;
    ExpressionPtr low;
    ExpressionPtr high;
};
struct NullCondition {
    ExpressionPtr value;
};
struct InCondition {
    ExpressionPtr value;
    std::vector<ExpressionPtr> list;
};
struct NotCondition {
    ConditionPtr condition;
};
struct AndCondition {
    std::vector<ConditionPtr> terms;
};
struct OrCondition {
    std::vector<ConditionPtr> terms;
};

struct Condition {
    std::variant<Comparison, LikeCondition, BetweenCondition, NullCondition, InCondition, NotCondition,
                 AndCondition, OrCondition>
        content;
};

struct SelectItem {
    ExpressionPtr expression;  ///< null for *
    std::string alias;
};

struct OrderItem {
    ExpressionPtr expression;
    bool descending = false;
};

struct SelectStatement {
    bool distinct = false;
    std::vector<SelectItem> items;
    std::optional<ObjectName> table;
    ConditionPtr where;
    std::vector<ExpressionPtr> groupBy;
    std::vector<OrderItem> orderBy;
};

struct InsertStatement {
    ObjectName table;
    std::vector<std::string> columns;  ///< empty: all of them
    std::vector<ExpressionPtr> values;
};

struct Assignment {
    ColumnName column;
    ExpressionPtr value;
};

struct UpdateStatement {
    ObjectName table;
    std::vector<Assignment> assignments;
    ConditionPtr where;
};

struct DeleteStatement {
    ObjectName table;
    ConditionPtr where;
};

struct ColumnDefinition {
    std::string name;
    TypeName type;
    bool nullable = true;
    bool primaryKey = false;
    bool unique = false;
};

struct AddColumnStatement {
    ObjectName table;
    ColumnDefinition column;
};

struct CreateTableStatement {
    ObjectName table;
    std::vector<ColumnDefinition> columns;
    std::vector<std::string> primaryKey;
    std::vector<std::vector<std::string>> uniqueKeys;
};

struct DropTableStatement {
    ObjectName table;
};

using Statement = std::variant<SelectStatement, InsertStatement, UpdateStatement, DeleteStatement,
                               AddColumnStatement, CreateTableStatement, DropTableStatement>;

}  // namespace tavrin::host::dialect
