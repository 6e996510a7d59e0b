#pragma once

#include <cstdint>

#include "doctor/core/examined_database.h"
#include "doctor/core/finding.h"

namespace tavrin::doctor {

/// Runs every statement of every window, tries whether days and persons can be entered twice and whether the
/// address book gives back the letters that it is given, each in a transaction of its own, and looks whether
/// the database is as it was.
Section TryStatements(ExaminedDatabase& database, std::int32_t company);

}  // namespace tavrin::doctor
