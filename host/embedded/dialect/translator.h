#pragma once

#include <string>
#include <vector>

#include "host/embedded/dialect/schema.h"
#include "host/embedded/dialect/typed_sql.h"
#include "host/embedded/field_type.h"

namespace tavrin::host::dialect {

/// A statement ready for the engine.
struct Translation {
    Sql sql;
    bool givesRows = false;
    std::vector<FieldInfo> fields;  ///< of the rows, in order
    std::string table;              ///< its stored name, for messages about a refused row
};

/// Looks up the names of a statement and writes it in the engine's language.
/// \throws data::Error as the server refuses it. Nothing has been run by then.
Translation Translate(const Statement& statement, const Schema& schema);

}  // namespace tavrin::host::dialect
