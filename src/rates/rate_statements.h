#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/value.h"
#include "rates/currency_names.h"
#include "rates/rate_values.h"

namespace tavrin::rates {

// The statements on the rate table, in one place. The host's database sees them exactly as they are built
// here, runs of blanks included; nothing is escaped, so a name with a bracket in it makes a statement that
// the server refuses.

std::string FrozenDateStatement(std::int32_t companyId);

/// Asks for the table's columns. The rate list's text ends in a blank, the other windows' does not.
inline constexpr std::string_view ListColumnsStatement = "SELECT * FROM [Curs Valutar] ";
inline constexpr std::string_view ColumnsStatement = "SELECT * FROM [Curs Valutar]";

/// Select list and table of the rate list, without filter and order.
std::string ListBaseQuery(const CurrencyNames& currencies);
std::string DateFilterClause(const DateRange& range);
inline constexpr std::string_view ListOrderClause = "ORDER BY [Data]";
/// All of it.
std::string ListQuery(const CurrencyNames& currencies, const DateRange& range);

/// A day as the writing statements take it: "dd/mm/yyyy" cut up and joined again as month-day-year.
std::string MonthDayYear(std::string_view dayMonthYear);

std::string DeleteDayStatement(std::string_view dayMonthYear);

/// How many rows a day has; asked before a day is added.
std::string CountDayStatement(data::OleDate day);
/// A row if the day exists; asked when the user has chosen a day.
std::string ProbeDayStatement(data::OleDate day);

std::string InsertDayStatement(std::string_view dayMonthYear, const std::vector<RateEntry>& rates);
std::string UpdateDayStatement(std::string_view dayMonthYear, const std::vector<RateEntry>& rates);

// Adding a currency takes three statements, each run on its own: column, zeros, the host's own list.
std::string AddColumnStatement(std::string_view currency);
std::string ZeroColumnStatement(std::string_view currency);
std::string RegisterCurrencyStatement(std::string_view currency);

}  // namespace tavrin::rates
