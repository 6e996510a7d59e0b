#pragma once

#include <string>

#include "forms/model/form.h"

namespace tavrin::rates {

/// What the user has chosen: a currency, and one of its rates.
struct CurrencyChoice {
    std::string currency;
    double rate = 0;          ///< lei for one unit of the currency
    std::string rateCaption;  ///< the line that says so, in the user's locale of now
    double amountInLei = 0;   ///< what is to be shown in the currency
};

/// A window that converts an amount between lei and a currency, as the currency chooser sees it: what the
/// chooser disables while it is open, and who takes what is chosen.
class CurrencyTarget {
  public:
    virtual ~CurrencyTarget() = default;

    virtual forms::Form& CallingWindow() = 0;
    /// The target of this moment that takes what is chosen: another one, once the calling window has closed.
    virtual CurrencyTarget& DefaultInstance() = 0;

    /// What the amount in the currency, as it is shown, is worth in lei. \throws data::Error 6 (overflow)
    virtual double AmountInLei() const = 0;
    /// \throws data::Error 6 (overflow), 11 (division by zero) where the rate converts no amount; it is the
    /// rate from now on all the same
    virtual void TakeChoice(const CurrencyChoice& choice) = 0;
};

}  // namespace tavrin::rates
