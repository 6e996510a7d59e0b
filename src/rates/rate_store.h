#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/table.h"
#include "data/value.h"
#include "rates/currency_names.h"
#include "rates/rate_statements.h"
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

    /// The rows of a display query, read at once; null when there are none.
    /// \param fields how many fields of each row the caller will look at
    /// \throws data::Error 3265 where the rows have fewer
    data::TablePtr Read(std::string_view query, std::size_t fields = 1) const;

    /// The number of rows of a day.
    std::int64_t CountDay(data::OleDate day) const;
    bool DayExists(data::OleDate day) const;

    void DeleteDay(std::string_view dayMonthYear) const;
    void InsertDay(std::string_view dayMonthYear, const std::vector<RateEntry>& rates) const;
    void UpdateDay(std::string_view dayMonthYear, const std::vector<RateEntry>& rates) const;

    /// The names of the table's columns from the third on. The first two are skipped by their place, whatever
    /// they are called: the host's table begins with "Data" and "Validat".
    std::vector<std::string> ColumnsAfterSecond() const;

    /// A column, its zeros, and its line in the host's list; what was done stays when a later step fails.
    void AddCurrency(std::string_view currency) const;

  private:
    const shell::HostContext& context_;
};

}  // namespace tavrin::rates
