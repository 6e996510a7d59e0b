#pragma once

#include <string>
#include <string_view>

#include "data/table.h"
#include "data/value.h"
#include "rates/currency_names.h"
#include "shell/host_context.h"

namespace tavrin::rates {

/// The daily rates in the host's database. Keeps nothing: every question is a statement on the host's
/// connection. What the provider refuses comes out as data::Error.
class RateStore {
  public:
    explicit RateStore(const shell::HostContext& context) : context_(context) {}

    /// The last day whose rates are frozen for the current company; 1 January 1900 when none ever were.
    data::OleDate FrozenDate() const;
    /// Whether a day may no longer be changed: it is not later than the frozen date.
    bool IsFrozen(data::OleDate day) const;

    /// The currencies are whatever columns the table has beside "Data" and "Validat" (exact letters).
    CurrencyNames DiscoverCurrencies() const;

    /// The rows of a display query, read at once; null when there are none.
    data::TablePtr Read(std::string_view query) const;

    void DeleteDay(std::string_view dayMonthYear) const;

  private:
    const shell::HostContext& context_;
};

}  // namespace tavrin::rates
