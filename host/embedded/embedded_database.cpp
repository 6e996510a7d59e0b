#include "host/embedded/embedded_database.h"

#include "host/embedded/dialect/expression_parser.h"
#include "host/embedded/dialect/parser.h"
#include "host/embedded/dialect/provider_error.h"
#include "host/embedded/information_schema.h"
#include "host/embedded/sqlite_statement.h"
#include "host/embedded/text_rules.h"

namespace tavrin::host {
namespace {

constexpr int BusyMilliseconds = 2000;

data::Value ReadValue(const SqliteStatement& row, int column, FieldType type) {
    if (row.IsNull(column)) return data::Null{};
    switch (type) {
        case FieldType::Integer:
            return row.Integer(column);
        case FieldType::Double:
        case FieldType::Money:
            return row.Double(column);
        case FieldType::DateTime:
            return data::OleDate{row.Double(column)};
        case FieldType::Text:
            break;
    }
    return row.Text(column);
}

data::MemoryTable::Row ReadRow(const SqliteStatement& row, const std::vector<FieldInfo>& fields) {
    data::MemoryTable::Row values;
    values.reserve(fields.size());
    for (const FieldInfo& field : fields) {
        values.push_back(ReadValue(row, static_cast<int>(values.size()), field.type));
    }
    return values;
}

std::shared_ptr<data::MemoryTable> MakeTable(const std::vector<FieldInfo>& fields) {
    std::vector<std::string> names;
    names.reserve(fields.size());
    for (const FieldInfo& field : fields)
        names.push_back(field.name);
    return std::make_shared<data::MemoryTable>(std::move(names));
}

// The type as it stands in the table's declaration: "float", "nvarchar(50)".
dialect::SqlType DeclaredType(const std::string& declaration) {
    dialect::TokenStream tokens(dialect::Tokenize(declaration));
    return dialect::ResolveType(dialect::ExpressionParser(tokens, CodePage::Utf8).ParseType(),
                                dialect::TypeUse::Column);
}

// The engine says "NOT NULL constraint failed: TABLE.COLUMN".
std::string ColumnOfMessage(const std::string& message, const std::string& table) {
    const std::string before = ": " + table + ".";
    const std::size_t position = message.find(before);
    return position == std::string::npos ? message : message.substr(position + before.size());
}

}  // namespace

EmbeddedDatabase::EmbeddedDatabase(const std::string& path, CodePage codePage) : codePage_(codePage) {
    sqlite3* opened = nullptr;
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    const int result = sqlite3_open_v2(path.c_str(), &opened, flags, nullptr);
    database_.reset(opened);
    if (opened == nullptr) throw data::Error(dialect::provider_error::Unspecified, "Out of memory.");
    if (result != SQLITE_OK) throw EngineError(opened);
    sqlite3_extended_result_codes(opened, 1);
    sqlite3_busy_timeout(opened, BusyMilliseconds);
    RegisterDialectFunctions(opened, pendingError_);
    IsBlank();  // reads the file: one that is no database is refused here, not at the first query
}

EmbeddedDatabase::Answer EmbeddedDatabase::Run(std::string_view statement) {
    const dialect::Translation translation = dialect::Translate(dialect::Parse(statement, codePage_), *this);
    pendingError_.reset();
    SqliteStatement prepared(database_.get(), translation.sql);
    Answer answer;
    answer.fields = translation.fields;
    if (translation.givesRows) answer.rows = MakeTable(translation.fields);
    const int changesBefore = sqlite3_total_changes(database_.get());
    while (prepared.Step()) {
        answer.rows->AddRow(ReadRow(prepared, translation.fields));
    }
    if (prepared.Result() != SQLITE_DONE) ThrowRefusal(translation);
    answer.affectedRows = sqlite3_total_changes(database_.get()) - changesBefore;
    return answer;
}

void EmbeddedDatabase::ThrowRefusal(const dialect::Translation& translation) {
    if (pendingError_) throw data::Error(*pendingError_);
    switch (sqlite3_extended_errcode(database_.get())) {
        case SQLITE_CONSTRAINT_PRIMARYKEY:
        case SQLITE_CONSTRAINT_UNIQUE:
            throw dialect::DuplicateKey(translation.table);
        case SQLITE_CONSTRAINT_NOTNULL:
            throw dialect::NullNotAllowed(ColumnOfMessage(sqlite3_errmsg(database_.get()), translation.table),
                                          translation.table);
        default:
            throw EngineError(database_.get());
    }
}

bool EmbeddedDatabase::IsBlank() const {
    return Tables().empty();
}

std::int64_t EmbeddedDatabase::SchemaVersion() const {
    SqliteStatement statement(database_.get(), {"PRAGMA schema_version", {}});
    if (!statement.Step()) throw EngineError(database_.get());
    return statement.Integer(0);
}

const std::vector<dialect::TableSchema>& EmbeddedDatabase::Tables() const {
    const std::int64_t version = SchemaVersion();
    if (version == tablesVersion_) return tables_;
    const dialect::Sql sql{"SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT GLOB 'sqlite_*'",
                           {}};
    SqliteStatement statement(database_.get(), sql);
    std::vector<dialect::TableSchema> tables;
    while (statement.Step())
        tables.push_back(ReadTable(statement.Text(0)));
    if (statement.Result() != SQLITE_DONE) throw EngineError(database_.get());
    tables_ = std::move(tables);
    tablesVersion_ = version;
    return tables_;
}

std::optional<dialect::TableSchema> EmbeddedDatabase::FindTable(std::string_view storedName) const {
    if (const auto columns = FindInformationSchema(storedName)) {
        RunEngineStatement(columns->definition);
        return columns->table;
    }
    for (const dialect::TableSchema& table : Tables()) {
        if (SameName(table.name, storedName)) return table;
    }
    return std::nullopt;
}

dialect::TableSchema EmbeddedDatabase::ReadTable(const std::string& name) const {
    dialect::Sql sql{"SELECT name, type FROM pragma_table_info(?) ORDER BY cid", {}};
    sql.parameters.emplace_back(name);
    SqliteStatement statement(database_.get(), sql);
    dialect::TableSchema table{name, {}};
    while (statement.Step())
        table.columns.push_back({statement.Text(0), DeclaredType(statement.Text(1))});
    if (statement.Result() != SQLITE_DONE) throw EngineError(database_.get());
    return table;
}

void EmbeddedDatabase::RunEngineStatement(const std::string& text) const {
    SqliteStatement statement(database_.get(), {text, {}});
    statement.Step();
    if (statement.Result() != SQLITE_DONE) throw EngineError(database_.get());
}

EmbeddedDatabase::Transaction::Transaction(EmbeddedDatabase& database) : database_(&database) {
    database.RunEngineStatement("BEGIN IMMEDIATE");
}

void EmbeddedDatabase::Transaction::Commit() {
    database_->RunEngineStatement("COMMIT");
    database_ = nullptr;
}

EmbeddedDatabase::Transaction::~Transaction() {
    if (database_ == nullptr) return;
    database_->tablesVersion_ =
        NeverRead;  // the version number goes back, and may come again for other tables
    try {
        database_->RunEngineStatement("ROLLBACK");
    } catch (...) {
        // The engine has already rolled back by itself; there is nobody left to tell.
    }
}

}  // namespace tavrin::host
