#pragma once

#include <string>
#include <string_view>

namespace tavrin::rates {

/// The days and rates of one currency, newest first. The filter, for which the windows keep a place, is empty
/// here, so two blanks stand before the order.
std::string CurrencyRatesQuery(std::string_view currency);

}  // namespace tavrin::rates
