#include "host/embedded/information_schema.h"

#include "host/embedded/dialect/typed_sql.h"
#include "host/embedded/text_rules.h"

namespace tavrin::host {
namespace {

using dialect::TypeKind;

constexpr dialect::SqlType NameType{TypeKind::Text, 128};
constexpr dialect::SqlType IntType{TypeKind::Int, 0};

std::string QuotedText(const std::string& text) {
    std::string quoted = "'";
    for (const char character : text) {
        if (character == '\'') quoted += '\'';
        quoted += character;
    }
    return quoted + "'";
}

/// The tables of other databases stand in the file under their full names.
std::string TablesOf(const std::string& database) {
    const std::string all =
        "SELECT name, $ AS shown FROM sqlite_master WHERE type = 'table' AND name NOT GLOB 'sqlite_*' AND ";
    const std::size_t mark = all.find('$');
    const std::string before = all.substr(0, mark);
    const std::string after = all.substr(mark + 1);
    if (database.empty()) return before + "name" + after + "instr(lower(name), '.dbo.') = 0";
    const std::string prefix = QuotedText(database + ".dbo.");
    return before + "substr(name, length(" + prefix + ") + 1)" + after + "lower(substr(name, 1, length(" +
           prefix + "))) = lower(" + prefix + ")";
}

std::string Definition(const std::string& view, const std::string& database) {
    // Types are declared as "float" or "nvarchar(50)".
    return "CREATE TEMP VIEW IF NOT EXISTS " + dialect::QuotedName(view) +
           " AS SELECT 'dbo' AS TABLE_SCHEMA, t.shown AS TABLE_NAME, c.name AS COLUMN_NAME, c.cid + 1 AS "
           "ORDINAL_POSITION, CASE c.\"notnull\" WHEN 0 THEN 'YES' ELSE 'NO' END AS IS_NULLABLE, "
           "substr(c.type, 1, "
           "instr(c.type || '(', '(') - 1) AS DATA_TYPE, CASE instr(c.type, '(') WHEN 0 THEN NULL ELSE "
           "CAST(substr(c.type, instr(c.type, '(') + 1) AS INTEGER) END AS CHARACTER_MAXIMUM_LENGTH FROM (" +
           TablesOf(database) + ") AS t, pragma_table_info(t.name) AS c";
}

}  // namespace

std::optional<InformationSchemaColumns> FindInformationSchema(std::string_view storedName) {
    constexpr std::string_view View = dialect::InformationSchemaColumnsName;
    if (storedName.size() < View.size() ||
        !SameName(storedName.substr(storedName.size() - View.size()), View))
        return std::nullopt;
    std::string database(storedName.substr(0, storedName.size() - View.size()));
    if (!database.empty()) database.pop_back();  // the point
    // One view for each database, however its name was written.
    const std::string name =
        database.empty() ? std::string(View) : FoldCase(database) + "." + std::string(View);
    InformationSchemaColumns found{{name, {}}, Definition(name, database)};
    for (const char* const column : {"TABLE_SCHEMA", "TABLE_NAME", "COLUMN_NAME", "IS_NULLABLE", "DATA_TYPE"})
        found.table.columns.push_back({column, NameType});
    for (const char* const column : {"ORDINAL_POSITION", "CHARACTER_MAXIMUM_LENGTH"})
        found.table.columns.push_back({column, IntType});
    return found;
}

}  // namespace tavrin::host
