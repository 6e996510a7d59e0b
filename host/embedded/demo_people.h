#pragma once

#include "host/embedded/embedded_database.h"

namespace tavrin::host {

inline constexpr int DemoPeople = 300;

/// The table `Agenda` with invented persons: names are put together from lists of common ones, telephone
/// numbers, addresses and firms are plainly made up.
void CreateDemoPeople(EmbeddedDatabase& database);

}  // namespace tavrin::host
