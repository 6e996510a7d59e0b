#pragma once

#include <vector>

#include "verify/report.h"

namespace tavrin::verify {

/// What a reader of the report needs to know of this machine and session. No names of the machine or its
/// user.
std::vector<Fact> ReadSystemFacts();

/// Whether the system is Wine.
bool IsWine();

}  // namespace tavrin::verify
