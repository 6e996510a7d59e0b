#include "host/embedded/dialect/select_translator.h"

#include <algorithm>
#include <charconv>

#include "host/embedded/dialect/expression_translator.h"
#include "host/embedded/dialect/function_names.h"
#include "host/embedded/dialect/provider_error.h"
#include "host/embedded/text_rules.h"

namespace tavrin::host::dialect {
namespace {

struct OutputColumn {
    std::string name;
    Sql sql;
    SqlType type;
    bool hasAlias = false;
};

class SelectTranslator {
  public:
    SelectTranslator(const SelectStatement& select, const Schema& schema) : select_(select) {
        if (!select.table) return;
        table_ = RequireTable(schema, *select.table);
        expressions_ = ExpressionTranslator(table_, *select.table);
    }
    SelectTranslator(const SelectTranslator&) = delete;  // expressions_ refers to table_
    SelectTranslator& operator=(const SelectTranslator&) = delete;

    Translation Run() {
        for (const SelectItem& item : select_.items)
            AddItem(item);
        for (const ExpressionPtr& key : select_.groupBy)
            groupKeys_.push_back(expressions_.Translate(*key).sql);
        if (IsGrouped()) CheckGroupedItems();

        Translation translation;
        translation.givesRows = true;
        translation.table = table_.name;
        translation.sql = Statement();
        for (const OutputColumn& column : output_) {
            translation.fields.push_back(DescribeField(column.name, column.type));
        }
        return translation;
    }

  private:
    void AddItem(const SelectItem& item) {
        if (item.expression == nullptr) {
            AddAllColumns();
            return;
        }
        TypedSql value = expressions_.Translate(*item.expression, ExpressionTranslator::Aggregates::Allowed);
        output_.push_back({NameOf(item), std::move(value.sql), value.type, !item.alias.empty()});
    }

    void AddAllColumns() {
        if (!select_.table) {
            throw data::Error(provider_error::ErrorsInCommand, "Must specify table to select from.");
        }
        for (const ColumnSchema& column : table_.columns) {
            output_.push_back({column.name, expressions_.Reference(column), column.type});
        }
    }

    // A column that is selected as it is gives its name as the statement writes it.
    static std::string NameOf(const SelectItem& item) {
        if (!item.alias.empty()) return item.alias;
        const auto* column = std::get_if<ColumnName>(&item.expression->content);
        return column != nullptr ? column->name : std::string();
    }

    bool IsGrouped() const {
        return !select_.groupBy.empty() ||
               std::any_of(select_.items.begin(), select_.items.end(), [](const SelectItem& item) {
                   return item.expression != nullptr && ContainsAggregate(*item.expression);
               });
    }

    void CheckGroupedItems() const {
        for (const SelectItem& item : select_.items) {
            if (item.expression == nullptr) throw NotGrouped(table_.name + ".*");
            expressions_.CheckGrouped(*item.expression, groupKeys_);
        }
    }

    Sql Statement() const {
        Sql sql{select_.distinct ? "SELECT DISTINCT " : "SELECT ", {}};
        std::vector<Sql> items;
        for (const OutputColumn& column : output_)
            items.push_back(column.sql);
        sql += Joined(items, ", ");
        if (!select_.table) return sql;
        sql += " FROM " + QuotedName(table_.name);
        if (select_.where != nullptr) {
            sql += " WHERE ";
            sql += expressions_.Translate(*select_.where);
        }
        if (!groupKeys_.empty()) {
            sql += " GROUP BY ";
            sql += Joined(groupKeys_, ", ");
        }
        if (!select_.orderBy.empty()) sql += OrderBy();
        return sql;
    }

    Sql OrderBy() const {
        std::vector<Sql> keys;
        for (const OrderItem& item : select_.orderBy)
            keys.push_back(OrderKey(item));
        Sql sql{" ORDER BY ", {}};
        sql += Joined(keys, ", ");
        return sql;
    }

    Sql OrderKey(const OrderItem& item) const {
        const std::size_t position = SelectedPosition(*item.expression);
        Sql key;
        SqlType type;
        if (position < output_.size()) {
            key.text = std::to_string(position + 1);
            type = output_[position].type;
        } else {
            TypedSql value = UnselectedKey(*item.expression);
            key = std::move(value.sql);
            type = value.type;
        }
        if (IsText(type)) key += std::string(" COLLATE ") + function_name::Collation;
        if (item.descending) key += " DESC";
        return key;
    }

    // Which selected column an ORDER BY item means: by position, by alias, or by being the same expression.
    // Without one, the number of columns.
    std::size_t SelectedPosition(const Expression& expression) const {
        if (const auto* number = std::get_if<NumberLiteral>(&expression.content))
            return Ordinal(number->digits);
        if (const auto* column = std::get_if<ColumnName>(&expression.content)) {
            const std::size_t position = AliasPosition(*column);
            if (position < output_.size()) return position;
        }
        const Sql sql = expressions_.Translate(expression, OrderAggregates()).sql;
        const auto found = std::find_if(output_.begin(), output_.end(),
                                        [&](const OutputColumn& column) { return column.sql == sql; });
        return static_cast<std::size_t>(found - output_.begin());
    }

    std::size_t AliasPosition(const ColumnName& name) const {
        if (!name.qualifier.parts.empty()) return output_.size();
        const auto found = std::find_if(output_.begin(), output_.end(), [&](const OutputColumn& column) {
            return column.hasAlias && SameName(column.name, name.name);
        });
        return static_cast<std::size_t>(found - output_.begin());
    }

    std::size_t Ordinal(const std::string& digits) const {
        std::size_t ordinal = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), ordinal);
        const bool whole = error == std::errc() && end == digits.data() + digits.size();
        if (!whole || ordinal < 1 || ordinal > output_.size()) throw OrderByOutOfRange(digits);
        return ordinal - 1;
    }

    TypedSql UnselectedKey(const Expression& expression) const {
        if (select_.distinct) throw OrderByNotSelected();
        if (IsGrouped()) expressions_.CheckGrouped(expression, groupKeys_);
        TypedSql key = expressions_.Translate(expression, OrderAggregates());
        if (key.literal != Literal::None) throw NotUnderstood("ORDER BY a constant");
        return key;
    }

    ExpressionTranslator::Aggregates OrderAggregates() const {
        return IsGrouped() ? ExpressionTranslator::Aggregates::Allowed
                           : ExpressionTranslator::Aggregates::Refused;
    }

    const SelectStatement& select_;
    TableSchema table_;
    ExpressionTranslator expressions_;
    std::vector<OutputColumn> output_;
    std::vector<Sql> groupKeys_;
};

}  // namespace

Translation TranslateSelect(const SelectStatement& select, const Schema& schema) {
    return SelectTranslator(select, schema).Run();
}

}  // namespace tavrin::host::dialect
