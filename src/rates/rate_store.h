#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/table.h"
#include "data/value.h"
#include "rates/currency_names.h"
#include "rates/rate_values.h"
#include "shell/host_context.h"

namespace tavrin::rates {

/// The daily rates in the host's database. Keeps nothing: every question is a statement on the host's
/// connection. What the provider refuses comes out as data::Error.
class RateStore {
  public:
    explicit RateStore(const shell::HostContext& context) : context_(context) {}

    /// The last day whose rates are frozen for the current company; 1 January 1900 when none ever were.
    data::OleDate FrozenDate() const;

    /// The currencies are whatever columns the table has beside "Data" and "Validat" (exact letters).
    CurrencyNames DiscoverCurrencies() const;

    // What windows show, read at once; null where there are no rows.

    /// The day as a text, the day, and the rate of each currency, in the order of the days.
    data::TablePtr ReadDays(const CurrencyNames& currencies, const DateRange& range) const;
    /// The days and rates of one currency, newest first.
    data::TablePtr ReadRates(std::string_view currency) const;
    /// Day or month, and the rate, in order. \throws data::Error 3265 where rows have fewer than two fields
    data::TablePtr ReadEvolution(const EvolutionChoice& choice) const;

    /// The years that have rates; where none has, the host's own year.
    std::vector<std::string> ReadYears() const;
    RateLimits ReadLimits(const EvolutionChoice& choice) const;
    /// The number of days in the chosen month that have rates. \pre a month is chosen
    std::int64_t CountDays(const EvolutionChoice& choice) const;

    /// The number of rows of a day.
    std::int64_t CountDay(data::OleDate day) const;
    bool DayExists(data::OleDate day) const;

    void DeleteDay(data::OleDate day) const;
    void InsertDay(data::OleDate day, const std::vector<RateEntry>& rates) const;
    void UpdateDay(data::OleDate day, const std::vector<RateEntry>& rates) const;

    /// The names of the table's columns from the third on. The first two are skipped by their place, whatever
    /// they are called: the host's table begins with "Data" and "Validat".
    std::vector<std::string> ColumnsAfterSecond() const;

    /// A column, its zeros, and its line in the host's list; what was done stays when a later step fails.
    void AddCurrency(std::string_view currency) const;

  private:
    data::TablePtr Read(std::string_view query, std::size_t fields = 1) const;

    const shell::HostContext& context_;
};

}  // namespace tavrin::rates
