#pragma once

#include "data/text/date.h"
#include "host/embedded/embedded_database.h"

namespace tavrin::host {

inline constexpr int DemoFirstYear = 2001;
inline constexpr int DemoLastYear = 2003;
/// The day that a user of the demo works on. Its own rates are still to be entered.
inline constexpr data::CalendarDay DemoDay{DemoLastYear, 11, 28};

/// The tables `Curs Valutar` and `LpVal`: five currencies, and the dollar once more as "$", which the
/// calculator asks for, on every working day before the demo's own, in whole lei of the time. The rates
/// wander smoothly around a trend; they are nobody's quotes.
void CreateDemoRates(EmbeddedDatabase& database);

}  // namespace tavrin::host
