#include "host/embedded/dialect/translator.h"

#include <algorithm>

#include "host/embedded/dialect/expression_translator.h"
#include "host/embedded/dialect/function_names.h"
#include "host/embedded/dialect/provider_error.h"
#include "host/embedded/dialect/select_translator.h"
#include "host/embedded/text_rules.h"

namespace tavrin::host::dialect {
namespace {

bool ContainsName(const std::vector<std::string>& names, std::string_view name) {
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& other) { return SameName(other, name); });
}

void AppendWhere(Sql& sql, const ExpressionTranslator& expressions, const ConditionPtr& where) {
    if (where == nullptr) return;
    sql += " WHERE ";
    sql += expressions.Translate(*where);
}

std::vector<std::string> TargetColumns(const InsertStatement& insert, const TableSchema& table) {
    if (!insert.columns.empty()) {
        if (insert.columns.size() != insert.values.size()) {
            throw ValueCountMismatch(insert.columns.size() < insert.values.size());
        }
        return insert.columns;
    }
    if (table.columns.size() != insert.values.size()) throw TableValueCountMismatch();
    std::vector<std::string> names;
    for (const ColumnSchema& column : table.columns)
        names.push_back(column.name);
    return names;
}

Translation TranslateInsert(const InsertStatement& insert, const Schema& schema) {
    const TableSchema table = RequireTable(schema, insert.table);
    const std::vector<std::string> targets = TargetColumns(insert, table);
    const ExpressionTranslator noColumns;  // VALUES may name none
    std::vector<std::string> written;
    std::vector<Sql> columns;
    std::vector<Sql> values;
    for (std::size_t index = 0; index < targets.size(); ++index) {
        const ColumnSchema* const column = table.Find(targets[index]);
        if (column == nullptr) throw UnknownColumn(targets[index]);
        if (ContainsName(written, column->name)) throw ColumnSetTwice(column->name);
        written.push_back(column->name);
        columns.push_back({QuotedName(column->name), {}});
        values.push_back(Stored(noColumns.Translate(*insert.values[index]), column->type));
    }
    Translation translation;
    translation.table = table.name;
    translation.sql += "INSERT INTO " + QuotedName(table.name) + " (";
    translation.sql += Joined(columns, ", ");
    translation.sql += ") VALUES (";
    translation.sql += Joined(values, ", ");
    translation.sql += ")";
    return translation;
}

Translation TranslateUpdate(const UpdateStatement& update, const Schema& schema) {
    const TableSchema table = RequireTable(schema, update.table);
    const ExpressionTranslator expressions(table, update.table);
    std::vector<std::string> written;
    std::vector<Sql> assignments;
    for (const Assignment& assignment : update.assignments) {
        const ColumnSchema& column = expressions.Resolve(assignment.column);
        if (ContainsName(written, column.name)) throw ColumnSetTwice(column.name);
        written.push_back(column.name);
        Sql sql{QuotedName(column.name) + " = ", {}};
        sql += Stored(expressions.Translate(*assignment.value), column.type);
        assignments.push_back(std::move(sql));
    }
    Translation translation;
    translation.table = table.name;
    translation.sql += "UPDATE " + QuotedName(table.name) + " SET ";
    translation.sql += Joined(assignments, ", ");
    AppendWhere(translation.sql, expressions, update.where);
    return translation;
}

Translation TranslateDelete(const DeleteStatement& statement, const Schema& schema) {
    const TableSchema table = RequireTable(schema, statement.table);
    Translation translation;
    translation.table = table.name;
    translation.sql += "DELETE FROM " + QuotedName(table.name);
    AppendWhere(translation.sql, ExpressionTranslator(table, statement.table), statement.where);
    return translation;
}

std::string DefinitionText(const ColumnDefinition& column) {
    const SqlType type = ResolveType(column.type, TypeUse::Column);
    std::string text = QuotedName(column.name) + " " + Declaration(type);
    if (IsText(type)) text += std::string(" COLLATE ") + function_name::Collation;
    return text;
}

Translation TranslateAddColumn(const AddColumnStatement& statement, const Schema& schema) {
    const TableSchema table = RequireTable(schema, statement.table);
    const ColumnDefinition& column = statement.column;
    const std::string definition = DefinitionText(column);
    if (table.Find(column.name) != nullptr) throw DuplicateColumn(column.name, table.name);
    Translation translation;
    translation.table = table.name;
    translation.sql += "ALTER TABLE " + QuotedName(table.name) + " ADD COLUMN " + definition;
    return translation;
}

std::string KeyList(const CreateTableStatement& statement, const std::vector<std::string>& key) {
    std::string list;
    for (const std::string& name : key) {
        const auto column =
            std::find_if(statement.columns.begin(), statement.columns.end(),
                         [&](const ColumnDefinition& one) { return SameName(one.name, name); });
        if (column == statement.columns.end()) throw UnknownColumn(name);
        if (!list.empty()) list += ", ";
        list += QuotedName(column->name);
    }
    return "(" + list + ")";
}

// The keys of the whole statement, whether they stand beside a column or by themselves.
struct Keys {
    std::vector<std::string> primary;
    std::vector<std::vector<std::string>> unique;
};

Keys CollectKeys(const CreateTableStatement& statement) {
    Keys keys{statement.primaryKey, statement.uniqueKeys};
    for (const ColumnDefinition& column : statement.columns) {
        if (column.unique) keys.unique.push_back({column.name});
        if (!column.primaryKey) continue;
        if (!keys.primary.empty()) throw NotUnderstood("more than one PRIMARY KEY");
        keys.primary.push_back(column.name);
    }
    return keys;
}

Translation TranslateCreateTable(const CreateTableStatement& statement, const Schema& schema) {
    const std::optional<std::string> storedName = StoredName(statement.table);
    if (!storedName) throw NotUnderstood("the table name '" + statement.table.Text() + "'");
    if (schema.FindTable(*storedName)) throw TableExists(statement.table.Text());
    const Keys keys = CollectKeys(statement);
    std::vector<std::string> names;
    std::vector<Sql> elements;
    for (const ColumnDefinition& column : statement.columns) {
        if (ContainsName(names, column.name)) throw DuplicateColumn(column.name, *storedName);
        names.push_back(column.name);
        const bool required = !column.nullable || ContainsName(keys.primary, column.name);
        elements.push_back({DefinitionText(column) + (required ? " NOT NULL" : ""), {}});
    }
    if (!keys.primary.empty()) elements.push_back({"PRIMARY KEY " + KeyList(statement, keys.primary), {}});
    for (const auto& key : keys.unique)
        elements.push_back({"UNIQUE " + KeyList(statement, key), {}});
    Translation translation;
    translation.table = *storedName;
    translation.sql += "CREATE TABLE " + QuotedName(*storedName) + " (";
    translation.sql += Joined(elements, ", ");
    translation.sql += ")";
    return translation;
}

Translation TranslateDropTable(const DropTableStatement& statement, const Schema& schema) {
    Translation translation;
    translation.table = RequireTable(schema, statement.table).name;
    translation.sql += "DROP TABLE " + QuotedName(translation.table);
    return translation;
}

struct StatementVisitor {
    const Schema& schema;
    Translation operator()(const SelectStatement& select) const { return TranslateSelect(select, schema); }
    Translation operator()(const InsertStatement& insert) const { return TranslateInsert(insert, schema); }
    Translation operator()(const UpdateStatement& update) const { return TranslateUpdate(update, schema); }
    Translation operator()(const DeleteStatement& one) const { return TranslateDelete(one, schema); }
    Translation operator()(const AddColumnStatement& add) const { return TranslateAddColumn(add, schema); }
    Translation operator()(const CreateTableStatement& one) const {
        return TranslateCreateTable(one, schema);
    }
    Translation operator()(const DropTableStatement& drop) const { return TranslateDropTable(drop, schema); }
};

}  // namespace

Translation Translate(const Statement& statement, const Schema& schema) {
    return std::visit(StatementVisitor{schema}, statement);
}

}  // namespace tavrin::host::dialect
