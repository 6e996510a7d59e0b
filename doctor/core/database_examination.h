#pragma once

#include <cstdint>
#include <optional>

#include "doctor/core/examined_database.h"
#include "doctor/core/finding.h"

namespace tavrin::doctor {

/// Everything that the windows need of a host's database. What it writes it rolls back, and then looks
/// whether the database is as it was.
Report ExamineDatabase(ExaminedDatabase& database, std::optional<std::int32_t> company);

}  // namespace tavrin::doctor
