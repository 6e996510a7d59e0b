#pragma once

#include <sqlite3.h>

#include <optional>

#include "data/error.h"

namespace tavrin::host {

/// An error that one of the functions raised inside the engine, which can carry only its text.
using PendingError = std::optional<data::Error>;

/// Gives the engine the collation and the functions that translated statements call. The pending error must
/// outlive the database handle. \throws data::Error
void RegisterDialectFunctions(sqlite3* database, PendingError& pendingError);

}  // namespace tavrin::host
