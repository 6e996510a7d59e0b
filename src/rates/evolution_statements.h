#pragma once

#include <string>
#include <string_view>

#include "rates/rate_values.h"

namespace tavrin::rates {

inline constexpr std::string_view RateYearsStatement =
    "SELECT DISTINCT YEAR(Data) AS AN FROM [Curs Valutar] ORDER BY YEAR(Data)";
inline constexpr std::string_view FinancialYearsStatement = "SELECT An FROM An";

/// The lowest and the highest rate of the choice.
std::string LimitsStatement(const EvolutionChoice& choice);
/// Day (or month) and rate, in order.
std::string EvolutionStatement(const EvolutionChoice& choice);
/// The number of days in the chosen month that have rates. \pre a month is chosen
std::string CountDaysStatement(const EvolutionChoice& choice);

}  // namespace tavrin::rates
