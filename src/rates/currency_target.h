#pragma once

#include <string>

#include "forms/form.h"

namespace tavrin::rates {

/// A window that converts an amount between lei and a currency, as the currency chooser sees it: what the
/// chooser disables while it is open, and what it writes the chosen rate and the converted amount into.
class CurrencyTarget {
  public:
    virtual ~CurrencyTarget() = default;

    virtual forms::Form& CallingWindow() = 0;
    /// The target of this moment that takes what is chosen: another one, once the calling window has closed.
    virtual CurrencyTarget& DefaultInstance() = 0;

    /// Lei for one unit of the currency. Setting it converts nothing by itself.
    virtual double CursCurent() const = 0;
    virtual void SetCursCurent(double rate) = 0;

    /// The amount in the currency, as it is shown.
    virtual double CurrencyAmount() const = 0;
    virtual void SetCurrencyAmount(double amount) = 0;
    virtual void SetCurrencyUnit(const std::string& currency) = 0;

    virtual void SetRateCaption(const std::string& caption) = 0;
};

}  // namespace tavrin::rates
