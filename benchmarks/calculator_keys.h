#pragma once

#include <string>
#include <string_view>

#include "data/text/grouped_number.h"
#include "unit/calculator/two_displays.h"

namespace tavrin::bench {

constexpr double Rate = 4.9762;

// What a user types.
constexpr std::string_view Number = "1234567890.12C";
// All is cleared at the end: the sums of a user do not grow to billions.
constexpr std::string_view RunningSum = "1+22+333+4.44+55.5+6+A";
constexpr std::string_view Percent = "1234.56+19%";
constexpr std::string_view Conversion = "1234.56X4.9762+19%";

/// Both displays as texts, after every key.
class TextDisplays : public tests::TwoDisplays {
  public:
    void ShowValues() override {
        TwoDisplays::ShowValues();
        data::WriteGroupedNumber(leiText, conversion.Lei(), 2, locale);
        data::WriteGroupedNumber(currencyText, conversion.Currency(), 2, locale);
    }

    data::Locale locale;
    std::string leiText;
    std::string currencyText;
};

}  // namespace tavrin::bench
