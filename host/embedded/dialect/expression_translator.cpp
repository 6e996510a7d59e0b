#include "host/embedded/dialect/expression_translator.h"

#include <algorithm>
#include <array>

#include "host/embedded/dialect/function_names.h"
#include "host/embedded/dialect/provider_error.h"
#include "host/embedded/text_rules.h"

namespace tavrin::host::dialect {
namespace {

using Aggregates = ExpressionTranslator::Aggregates;

constexpr SqlType IntType{TypeKind::Int, 0};
constexpr int DayMonthYearStyle = 103;
constexpr int ThousandsStyle = 1;

TypedSql Computed(Sql sql, SqlType type) {
    return {std::move(sql), type, Literal::None, {}};
}

bool IsAggregateName(std::string_view function) {
    static constexpr auto Names = std::to_array<std::string_view>({"MIN", "MAX", "AVG", "SUM", "COUNT"});
    return std::find(Names.begin(), Names.end(), function) != Names.end();
}

const char* DatePartFunction(std::string_view function) {
    if (function == "YEAR") return function_name::Year;
    if (function == "MONTH") return function_name::Month;
    return function == "DAY" ? function_name::Day : nullptr;
}

void RequireArguments(const Call& call, std::size_t count) {
    if (call.star || call.arguments.size() != count) {
        throw data::Error(provider_error::ErrorsInCommand, "The " + call.function + " function requires " +
                                                               std::to_string(count) + " argument(s).");
    }
}

void RequireNumber(const Call& call, SqlType type) {
    if (!IsNumber(type)) {
        throw data::Error(
            provider_error::ErrorsInCommand,
            "Operand data type " + KindName(type) + " is invalid for " + call.function + " operator.");
    }
}

Sql Shortened(Sql sql, int length) {
    return FunctionCall("substr",
                        {std::move(sql), Parameter(std::int64_t{1}), Parameter(std::int64_t{length})});
}

/// Translates one expression; Aggregates says whether MIN and its like may stand here.
class Visitor {
  public:
    Visitor(const ExpressionTranslator& translator, Aggregates aggregates)
        : translator_(translator), aggregates_(aggregates) {}

    TypedSql operator()(const ColumnName& name) const {
        const ColumnSchema& column = translator_.Resolve(name);
        return Computed(translator_.Reference(column), column.type);
    }
    TypedSql operator()(const TextLiteral& literal) const { return TextValue(literal.text); }
    TypedSql operator()(const NumberLiteral& literal) const { return NumberValue(literal.digits); }
    TypedSql operator()(NullLiteral) const { return NullValue(); }

    TypedSql operator()(const Call& call) const {
        if (IsAggregateName(call.function)) return Aggregate(call);
        if (const char* const part = DatePartFunction(call.function)) return DatePart(call, part);
        if (call.function == "ISNULL") return IsNull(call);
        throw NotUnderstood("the function '" + call.function + "'");
    }

    TypedSql operator()(const Conversion& conversion) const {
        const SqlType target = ResolveType(conversion.type, TypeUse::Conversion);
        const TypedSql operand = translator_.Translate(*conversion.operand, aggregates_);
        if (IsText(target) && operand.literal != Literal::Null)
            return ToText(operand, target, conversion.style);
        if (conversion.style) ThrowStyle(operand.type, target, conversion.style);
        return Converted(operand, target);
    }

  private:
    TypedSql Aggregate(const Call& call) const {
        if (aggregates_ == Aggregates::Refused) {
            throw data::Error(provider_error::ErrorsInCommand,
                              "An aggregate may not appear here: '" + call.function + "'.");
        }
        if (call.star && call.function == "COUNT") return Computed({"count(*)", {}}, IntType);
        RequireArguments(call, 1);
        const TypedSql operand = translator_.Translate(*call.arguments[0], Aggregates::Refused);
        if (call.function == "COUNT") return Computed(FunctionCall("count", {operand.sql}), IntType);
        if (call.function == "MIN") return Computed(FunctionCall("min", {operand.sql}), operand.type);
        if (call.function == "MAX") return Computed(FunctionCall("max", {operand.sql}), operand.type);
        RequireNumber(call, operand.type);
        if (call.function == "SUM") return Computed(FunctionCall("sum", {operand.sql}), operand.type);
        return Average(operand);
    }

    // The server's average has the type of what it averages: of whole numbers it is whole.
    static TypedSql Average(const TypedSql& operand) {
        Sql average = FunctionCall("avg", {operand.sql});
        if (operand.type.kind == TypeKind::Money) average = FunctionCall(function_name::Money, {average});
        if (operand.type.kind != TypeKind::Int) return Computed(std::move(average), operand.type);
        Sql whole{"CAST(", {}};
        whole += average;
        whole += " AS INTEGER)";
        return Computed(std::move(whole), IntType);
    }

    TypedSql DatePart(const Call& call, const char* part) const {
        RequireArguments(call, 1);
        const SqlType dateType{TypeKind::DateTime, 0};
        const TypedSql date = Converted(translator_.Translate(*call.arguments[0], aggregates_), dateType);
        return Computed(FunctionCall(part, {date.sql}), IntType);
    }

    TypedSql IsNull(const Call& call) const {
        RequireArguments(call, 2);
        const TypedSql checked = translator_.Translate(*call.arguments[0], aggregates_);
        TypedSql replacement = translator_.Translate(*call.arguments[1], aggregates_);
        if (checked.literal == Literal::Null) return replacement;
        SqlType type = checked.type;
        // A datetime stands in for a smalldatetime as it is: there is nothing between the minutes to lose
        // here.
        if (!(IsDate(type) && IsDate(replacement.type))) replacement = Converted(replacement, type);
        return Computed(FunctionCall("ifnull", {checked.sql, replacement.sql}), type);
    }

    static TypedSql ToText(const TypedSql& operand, SqlType target, std::optional<int> style) {
        if (IsDate(operand.type) && style == DayMonthYearStyle) {
            return Computed(Shortened(FunctionCall(function_name::DateText, {operand.sql}), target.length),
                            target);
        }
        if (operand.type.kind == TypeKind::Money && style.value_or(0) <= ThousandsStyle &&
            RoomForNumber(target)) {
            const Sql styleArgument = Parameter(std::int64_t{style.value_or(0)});
            return Computed(FunctionCall(function_name::MoneyText, {operand.sql, styleArgument}), target);
        }
        if (style) ThrowStyle(operand.type, target, style);
        if (IsText(operand.type)) return Computed(Shortened(operand.sql, target.length), target);
        if (operand.type.kind != TypeKind::Int || !RoomForNumber(target))
            ThrowStyle(operand.type, target, style);
        return Computed({"CAST(" + operand.sql.text + " AS TEXT)", operand.sql.parameters}, target);
    }

    static bool RoomForNumber(SqlType text) { return text.length >= 30; }

    [[noreturn]] static void ThrowStyle(SqlType from, SqlType to, std::optional<int> style) {
        const std::string styled =
            style ? " in style " + std::to_string(*style) : std::string(" without a style");
        throw NotUnderstood("CONVERT of " + KindName(from) + " to " + Declaration(to) + styled);
    }

    const ExpressionTranslator& translator_;
    Aggregates aggregates_;
};

}  // namespace

TypedSql ExpressionTranslator::Translate(const Expression& expression, Aggregates aggregates) const {
    return std::visit(Visitor(*this, aggregates), expression.content);
}

const ColumnSchema& ExpressionTranslator::Resolve(const ColumnName& column) const {
    const ObjectName& qualifier = column.qualifier;
    if (!qualifier.parts.empty()) {
        const bool last = writtenAs_ != nullptr && qualifier.parts.size() == 1 &&
                          SameName(qualifier.parts.front(), writtenAs_->parts.back());
        const std::optional<std::string> stored = StoredName(qualifier);
        const bool whole = table_ != nullptr && stored && SameName(*stored, table_->name);
        if (!last && !whole) throw UnboundName(column.Text());
    }
    const ColumnSchema* const found = table_ != nullptr ? table_->Find(column.name) : nullptr;
    if (found == nullptr) throw UnknownColumn(column.name);
    return *found;
}

Sql ExpressionTranslator::Reference(const ColumnSchema& column) const {
    return {QuotedName(table_->name) + "." + QuotedName(column.name), {}};
}

void ExpressionTranslator::CheckGrouped(const Expression& expression, const std::vector<Sql>& keys) const {
    if (IsAggregate(expression)) return;
    const Sql sql = Translate(expression, Aggregates::Allowed).sql;
    if (std::find(keys.begin(), keys.end(), sql) != keys.end()) return;
    if (const auto* column = std::get_if<ColumnName>(&expression.content)) {
        throw NotGrouped(table_->name + "." + Resolve(*column).name);
    }
    if (const auto* conversion = std::get_if<Conversion>(&expression.content)) {
        CheckGrouped(*conversion->operand, keys);
    }
    if (const auto* call = std::get_if<Call>(&expression.content)) {
        for (const ExpressionPtr& argument : call->arguments)
            CheckGrouped(*argument, keys);
    }
}

bool IsAggregate(const Expression& expression) {
    const auto* call = std::get_if<Call>(&expression.content);
    return call != nullptr && IsAggregateName(call->function);
}

bool ContainsAggregate(const Expression& expression) {
    if (IsAggregate(expression)) return true;
    if (const auto* conversion = std::get_if<Conversion>(&expression.content)) {
        return ContainsAggregate(*conversion->operand);
    }
    const auto* call = std::get_if<Call>(&expression.content);
    return call != nullptr && std::any_of(call->arguments.begin(), call->arguments.end(),
                                          [](const ExpressionPtr& item) { return ContainsAggregate(*item); });
}

}  // namespace tavrin::host::dialect
