#pragma once

#include "data/checked_arithmetic.h"

namespace tavrin::calculator {

/// What numbers are typed in.
enum class Unit { Lei, Currency };

/// One amount twice, in lei and in a currency, at the rate of that currency. A number is typed in one of the
/// two units; the value in the other follows. Neither a new rate nor another unit converts anything by
/// itself.
class Conversion {
  public:
    double Lei() const { return lei_; }
    double Currency() const { return currency_; }
    /// The value in the unit that numbers are typed in: what an operator takes as its operand.
    double Typed() const { return unit_ == Unit::Lei ? lei_ : currency_; }

    Unit TypedIn() const { return unit_; }
    void TypeIn(Unit unit) { unit_ = unit; }
    /// Lei for one unit of the currency.
    double Rate() const { return rate_; }
    void SetRate(double rate) { rate_ = rate; }
    /// How many decimals may be typed, are kept of a result and are shown.
    int Decimals() const { return decimals_; }
    void SetDecimals(int decimals) { decimals_ = decimals; }

    /// Takes a typed number. One that cannot be converted is taken all the same, and the other value stays.
    /// \throws data::Error 6 (overflow), 11 (division by zero) at a rate of zero
    void Type(double number) {
        if (unit_ == Unit::Lei) {
            lei_ = data::CheckedResult(number);
            currency_ = data::CheckedQuotient(lei_, rate_);
        } else {
            currency_ = data::CheckedResult(number);
            lei_ = data::CheckedResult(currency_ * rate_);
        }
    }
    /// Zero in both units, whatever the rate.
    void Clear() { lei_ = currency_ = 0; }

    /// What the amount in the currency is worth in lei at the rate. \throws data::Error 6 (overflow)
    double WorthInLei() const { return data::CheckedResult(currency_ * rate_); }
    /// The amount in the currency becomes what so many lei buy at the rate; the value in lei is left alone.
    /// \throws data::Error 6 (overflow), 11 (division by zero)
    void BuyFor(double lei) { currency_ = data::CheckedQuotient(lei, rate_); }

  private:
    Unit unit_ = Unit::Lei;
    int decimals_ = 2;
    double rate_ = 1;
    double lei_ = 0;
    double currency_ = 0;
};

}  // namespace tavrin::calculator
