#include "data/text/grouped_number.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string_view>

#include "data/text/decimal.h"
#include "data/text/rounding.h"

namespace tavrin::data {

namespace {

constexpr double ExponentFrom = 1e21;
constexpr int GroupSize = 3;
constexpr std::uint64_t GroupLimit = 1000;

/// Digits and separators, filled from the end; long enough for 21 digits in groups and all decimals. The
/// platform's separators have at most three characters.
class BackwardWriter {
  public:
    void Put(char character) { *--first_ = character; }
    void Put(const std::string& separator) {
        if (separator.size() == 1) return Put(separator.front());
        for (std::size_t i = std::min(separator.size(), LongestSeparator); i > 0; --i)
            Put(separator[i - 1]);
    }
    /// The last digit of a number; the number without it is left.
    template <class Number>
    void PutDigit(Number& number) {
        Put(static_cast<char>('0' + number % 10));
        number /= 10;
    }
    void PutGroup(std::uint64_t& number) {
        // One division of the long number; the digits come off the short one.
        auto group = static_cast<std::uint32_t>(number % GroupLimit);
        number /= GroupLimit;
        for (int i = 0; i < GroupSize; ++i)
            PutDigit(group);
    }
    std::string_view Written() const {
        return {first_, static_cast<std::size_t>(buffer_.data() + buffer_.size() - first_)};
    }

  private:
    static constexpr std::size_t LongestSeparator = 9;
    std::array<char, 128> buffer_;
    char* first_ = buffer_.data() + buffer_.size();
};

/// Groups digits that arrive one by one, the last first.
class GroupWriter {
  public:
    GroupWriter(BackwardWriter& writer, const std::string& separator)
        : writer_(writer), separator_(separator) {}

    void Put(char digit) {
        if (inGroup_ == GroupSize) {
            writer_.Put(separator_);
            inGroup_ = 0;
        }
        writer_.Put(digit);
        ++inGroup_;
    }

  private:
    BackwardWriter& writer_;
    const std::string& separator_;
    int inGroup_ = 0;
};

void WriteUnits(BackwardWriter& writer, std::uint64_t units, int decimals, const Locale& locale) {
    for (int i = 0; i < decimals; ++i)
        writer.PutDigit(units);
    if (decimals > 0) writer.Put(locale.decimalSeparator);
    while (units >= GroupLimit) {
        writer.PutGroup(units);
        writer.Put(locale.thousandsSeparator);
    }
    do {
        writer.PutDigit(units);
    } while (units > 0);
}

/// For a number so large that zeros follow the digits of its decimal.
void WriteLarge(BackwardWriter& writer, double magnitude, int decimals, const Locale& locale) {
    Decimal number = DecimalOf(magnitude);
    const int size = number.point + decimals;
    number.digits.Resize(static_cast<std::size_t>(size));
    const std::string_view digits = number.digits.View();
    const auto point = static_cast<std::size_t>(number.point);
    std::size_t at = digits.size();
    if (decimals > 0) {
        while (at > point)
            writer.Put(digits[--at]);
        writer.Put(locale.decimalSeparator);
    }
    GroupWriter groups(writer, locale.thousandsSeparator);
    while (at > 0)
        groups.Put(digits[--at]);
}

void AppendWithExponent(std::string& text, double magnitude, const Locale& locale) {
    const Decimal number = DecimalOf(magnitude);
    const std::string_view digits = number.digits.View();
    text += digits.front();
    if (digits.size() > 1) {
        text += locale.decimalSeparator;
        text += digits.substr(1);
    }
    text += "E+" + std::to_string(number.point - 1);
}

}  // namespace

void WriteGroupedNumber(std::string& text, double number, int decimals, const Locale& locale) {
    text.clear();
    if (!std::isfinite(number)) return;
    const double magnitude = std::fabs(number);
    const std::optional<std::uint64_t> units = RoundedUnits(number, decimals);
    if (magnitude >= ExponentFrom) {
        if (number < 0) text += '-';
        AppendWithExponent(text, magnitude, locale);
        return;
    }
    BackwardWriter writer;
    if (units) {
        WriteUnits(writer, *units, decimals, locale);
    } else {
        WriteLarge(writer, magnitude, decimals, locale);
    }
    if (number < 0 && units != 0U) writer.Put('-');
    text += writer.Written();
}

}  // namespace tavrin::data
