#pragma once

#include <sqlite3.h>

#include <memory>
#include <string>

#include "data/error.h"
#include "data/value.h"
#include "host/embedded/dialect/typed_sql.h"

namespace tavrin::host {

/// One prepared statement of the engine. The database must outlive it.
class SqliteStatement {
  public:
    /// \throws data::Error with the engine's message.
    SqliteStatement(sqlite3* database, const dialect::Sql& sql);

    /// Whether there is a row. On failure answers nothing and throws nothing: see Result.
    bool Step();
    /// SQLITE_ROW, SQLITE_DONE or the extended error code of the last step.
    int Result() const { return result_; }

    bool IsNull(int column) const;
    std::int64_t Integer(int column) const;
    double Double(int column) const;
    std::string Text(int column) const;

  private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
    int result_ = SQLITE_OK;
};

/// The engine's last error, as a provider that has no better number for it reports it.
data::Error EngineError(sqlite3* database);

}  // namespace tavrin::host
