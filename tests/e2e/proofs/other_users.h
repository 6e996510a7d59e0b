#pragma once

#include <string>

#include "e2e/driver/host.h"
#include "e2e/driver/random.h"

namespace tavrin::e2e {

/// What others do to the host's database while the windows are open: takes rows away, adds some, freezes
/// rates. No table goes.
std::string AnyWrite(Random& random);

/// What the host may hand over: another day, another company, now and then a year that no calendar has.
HostValues AnyHostValues(Random& random);

}  // namespace tavrin::e2e
