#pragma once

#include <vector>

#include "host/embedded/dialect/schema.h"
#include "host/embedded/dialect/typed_sql.h"

namespace tavrin::host::dialect {

/// Translates the expressions and conditions of one statement on one table.
class ExpressionTranslator {
  public:
    /// For a statement without a table, in which no column can be named.
    ExpressionTranslator() = default;
    /// Both must outlive the translator.
    ExpressionTranslator(const TableSchema& table, const ObjectName& writtenAs)
        : table_(&table), writtenAs_(&writtenAs) {}

    enum class Aggregates { Allowed, Refused };
    TypedSql Translate(const Expression& expression, Aggregates aggregates = Aggregates::Refused) const;
    Sql Translate(const Condition& condition) const;

    /// \throws data::Error when the table has no such column.
    const ColumnSchema& Resolve(const ColumnName& column) const;
    Sql Reference(const ColumnSchema& column) const;

    /// \throws data::Error when a column outside aggregates is none of the keys of GROUP BY.
    void CheckGrouped(const Expression& expression, const std::vector<Sql>& keys) const;

  private:
    const TableSchema* table_ = nullptr;
    const ObjectName* writtenAs_ = nullptr;
};

bool IsAggregate(const Expression& expression);
/// Whether an aggregate stands anywhere in it.
bool ContainsAggregate(const Expression& expression);

}  // namespace tavrin::host::dialect
