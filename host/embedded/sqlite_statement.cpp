#include "host/embedded/sqlite_statement.h"

#include "host/embedded/dialect/provider_error.h"

namespace tavrin::host {
namespace {

struct Binder {
    sqlite3_stmt* statement;
    int index;

    int operator()(data::Empty) const { return sqlite3_bind_null(statement, index); }
    int operator()(data::Null) const { return sqlite3_bind_null(statement, index); }
    int operator()(std::int64_t number) const { return sqlite3_bind_int64(statement, index, number); }
    int operator()(double number) const { return sqlite3_bind_double(statement, index, number); }
    int operator()(data::OleDate date) const { return sqlite3_bind_double(statement, index, date.days); }
    int operator()(const std::string& text) const {
        return sqlite3_bind_text64(statement, index, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    }
};

}  // namespace

SqliteStatement::SqliteStatement(sqlite3* database, const dialect::Sql& sql) {
    sqlite3_stmt* prepared = nullptr;
    const int length = static_cast<int>(sql.text.size());
    if (sqlite3_prepare_v2(database, sql.text.data(), length, &prepared, nullptr) != SQLITE_OK) {
        throw EngineError(database);
    }
    statement_.reset(prepared);
    int index = 0;
    for (const data::Value& value : sql.parameters) {
        if (std::visit(Binder{prepared, ++index}, value.Content()) != SQLITE_OK) throw EngineError(database);
    }
}

bool SqliteStatement::Step() {
    result_ = sqlite3_step(statement_.get());
    return result_ == SQLITE_ROW;
}

bool SqliteStatement::IsNull(int column) const {
    return sqlite3_column_type(statement_.get(), column) == SQLITE_NULL;
}

std::int64_t SqliteStatement::Integer(int column) const {
    return sqlite3_column_int64(statement_.get(), column);
}

double SqliteStatement::Double(int column) const {
    return sqlite3_column_double(statement_.get(), column);
}

std::string SqliteStatement::Text(int column) const {
    const unsigned char* const text = sqlite3_column_text(statement_.get(), column);
    const auto length = static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column));
    if (text == nullptr) return {};
    return {reinterpret_cast<const char*>(text), length};
}

data::Error EngineError(sqlite3* database) {
    return {dialect::provider_error::Unspecified, sqlite3_errmsg(database)};
}

}  // namespace tavrin::host
