#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/embedded/dialect/sql_type.h"
#include "host/embedded/dialect/syntax.h"

namespace tavrin::host::dialect {

struct ColumnSchema {
    std::string name;  ///< as it was created
    SqlType type;
};

struct TableSchema {
    std::string name;                   ///< under which it is stored, as it was created
    std::vector<ColumnSchema> columns;  ///< in creation order

    /// Null when there is none; case and trailing blanks do not count.
    const ColumnSchema* Find(std::string_view column) const;
};

/// Answers what tables exist.
class Schema {
  public:
    virtual ~Schema() = default;
    virtual std::optional<TableSchema> FindTable(std::string_view storedName) const = 0;
};

/// The one view of a server's own that is known, of the connection's database or behind another one's name.
inline constexpr std::string_view InformationSchemaColumnsName = "INFORMATION_SCHEMA.COLUMNS";

/// The name under which a table is kept: its own, or all three parts for a table of another database. Nothing
/// for a name that can be no table's here.
std::optional<std::string> StoredName(const ObjectName& name);

/// \throws data::Error 80040E37 when there is no such table.
TableSchema RequireTable(const Schema& schema, const ObjectName& name);

}  // namespace tavrin::host::dialect
