#pragma once

#include <functional>

#include "proofs/random_event.h"

namespace tavrin::tests {

/// The fewest of the events, in their order, that still fail: none of them can be left out alone.
RandomEvents Shrink(RandomEvents events, const std::function<bool(const RandomEvents&)>& fails);

}  // namespace tavrin::tests
