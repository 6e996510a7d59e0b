#pragma once

#include "host/embedded/embedded_database.h"

namespace tavrin::host {

inline constexpr int DemoFirstYear = 2001;
inline constexpr int DemoLastYear = 2003;

/// The tables `Curs Valutar` and `LpVal`: six currencies on every working day, in whole lei of the time. The
/// rates wander smoothly around a trend; they are nobody's quotes.
void CreateDemoRates(EmbeddedDatabase& database);

}  // namespace tavrin::host
