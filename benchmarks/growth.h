#pragma once

namespace tavrin::bench {

/// Prints how the cost of a unit of work grows with 10 and 100 times the work, beside the smallest, for what
/// users do with long notes, lists and charts. \return whether none grows by more than it may
bool PrintGrowth(int rounds);

}  // namespace tavrin::bench
