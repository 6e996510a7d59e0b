#pragma once

#include "data/connection.h"
#include "doctor/core/finding.h"

namespace tavrin::doctor {

/// How the server reads the dates and the letters of statements.
Section ExamineServer(data::Connection& connection);

}  // namespace tavrin::doctor
