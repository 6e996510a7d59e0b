#pragma once

#include <string>
#include <vector>

#include "data/connection.h"
#include "doctor/core/finding.h"

namespace tavrin::doctor {

enum class ColumnKind { Text, Number, Date };

struct ExpectedColumn {
    std::string name;
    ColumnKind kind;
};

/// A table that the windows need. A database in front stands for one of another name than the connection's.
struct ExpectedTable {
    std::string database;  ///< empty: the connection's own
    std::string name;
    std::vector<ExpectedColumn> columns;

    /// As statements name it.
    std::string FullName() const;
};

std::vector<ExpectedTable> ExpectedTables();

/// Which tables there are, with their columns in order and their types; and what of them is wrong.
Section ExamineTables(data::Connection& connection);

}  // namespace tavrin::doctor
