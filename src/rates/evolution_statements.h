#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavrin::rates {

/// What an evolution chart shows: one currency over one month, or over a whole year in monthly averages.
struct EvolutionChoice {
    std::string year;          ///< as the list shows it
    std::optional<int> month;  ///< 1 to 12; none for the whole year
    std::string currency;      ///< a column's name; blanks around it are dropped
};

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
