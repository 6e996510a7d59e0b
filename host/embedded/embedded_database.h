#pragma once

#include <sqlite3.h>

#include <memory>
#include <string>

#include "data/error.h"
#include "data/memory_table.h"
#include "host/embedded/code_page.h"
#include "host/embedded/dialect/schema.h"
#include "host/embedded/dialect/translator.h"
#include "host/embedded/sqlite_functions.h"

namespace tavrin::host {

/// The stand-in for a host's database server: one SQLite file that answers the host's statements as a server
/// would. Dates are kept as OLE dates, text under the server's default collation (text_rules.h). Not
/// thread-safe.
class EmbeddedDatabase : public dialect::Schema {
  public:
    /// Opens the file, or creates it; ":memory:" lives as long as the object. The path is UTF-8.
    /// \throws data::Error
    explicit EmbeddedDatabase(const std::string& path, CodePage codePage = CodePage::CentralEuropean);

    /// What a statement gave.
    struct Answer {
        std::shared_ptr<data::MemoryTable> rows;  ///< null for a write
        std::vector<FieldInfo> fields;
        std::int64_t affectedRows = 0;
    };

    /// Runs one statement, wholly or not at all. \throws data::Error
    Answer Run(std::string_view statement);

    /// What texts of the statements from now on pass through, as after a change of the database's collation.
    void SetCodePage(CodePage page) { codePage_ = page; }

    /// No table has been created yet.
    bool IsBlank() const;

    std::optional<dialect::TableSchema> FindTable(std::string_view storedName) const override;

    /// What is run until Commit is undone when the object goes without it. They do not nest.
    class Transaction {
      public:
        explicit Transaction(EmbeddedDatabase& database);
        ~Transaction();
        Transaction(const Transaction&) = delete;
        Transaction& operator=(const Transaction&) = delete;
        void Commit();

      private:
        EmbeddedDatabase* database_;
    };

  private:
    void RunEngineStatement(const std::string& text) const;
    const std::vector<dialect::TableSchema>& Tables() const;
    dialect::TableSchema ReadTable(const std::string& name) const;
    std::int64_t SchemaVersion() const;
    [[noreturn]] void ThrowRefusal(const dialect::Translation& translation);

    struct Closer {
        void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
    };
    CodePage codePage_;
    PendingError pendingError_;  // before the handle, whose functions write to it
    std::unique_ptr<sqlite3, Closer> database_;

    // Read again whenever the file's schema version has moved on.
    static constexpr std::int64_t NeverRead = -1;
    mutable std::int64_t tablesVersion_ = NeverRead;
    mutable std::vector<dialect::TableSchema> tables_;
};

}  // namespace tavrin::host
