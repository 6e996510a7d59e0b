#pragma once

#include <optional>
#include <string>

#include "data/value.h"

namespace tavrin::rates {

// What windows and the rate store say to each other.

/// Days from the first to the last, both among them.
struct DateRange {
    data::OleDate first;
    data::OleDate last;
};

/// One line of the entry grid as the user sees it: the value carries its thousands separators.
struct RateEntry {
    std::string currency;
    std::string value;
};

/// What an evolution chart shows: one currency over one month, or over a whole year in monthly averages.
struct EvolutionChoice {
    std::string year;          ///< as the list shows it
    std::optional<int> month;  ///< 1 to 12; none for the whole year
    std::string currency;      ///< a column's name; blanks around it are dropped
};

/// The lowest and the highest rate of a choice; zeros where there is none.
struct RateLimits {
    double lowest = 0;
    double highest = 0;
};

}  // namespace tavrin::rates
