// Conversions of a field's value, in the terms of the runtime that the windows' rules come from.
#include "data/value.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "data/error.h"
#include "data/text/digits.h"
#include "data/text/number_text.h"
#include "data/text/trim.h"

namespace tavrin::data {
namespace {

[[noreturn]] void ThrowTypeMismatch() {
    throw RuntimeError(error_number::TypeMismatch);
}
[[noreturn]] void ThrowOverflow() {
    throw RuntimeError(error_number::Overflow);
}
[[noreturn]] void ThrowInvalidUseOfNull() {
    throw RuntimeError(error_number::InvalidUseOfNull);
}

// What reads numbers knows no plus sign.
std::string_view WithoutPlus(std::string_view text) {
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
    return text;
}

double NumberFromText(std::string_view original) {
    const std::string_view text = WithoutPlus(Trimmed(original));
    const std::optional<double> number = NumberIn(text, Exponents::Read);
    if (!number) ThrowTypeMismatch();
    if (!std::isfinite(*number)) ThrowOverflow();
    return *number;
}

std::int64_t RoundedInteger(double number) {
    const double limit = 9223372036854775808.0;  // 2^63
    if (!(number >= -limit && number < limit)) ThrowOverflow();
    return static_cast<std::int64_t>(number - std::remainder(number, 1.0));
}

std::int64_t IntegerFromText(std::string_view original) {
    const std::string_view text = WithoutPlus(Trimmed(original));
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc() && end == text.data() + text.size()) return number;
    return RoundedInteger(NumberFromText(original));
}

OleDate DateFromText(std::string_view original) {
    const std::string_view text = Trimmed(original);
    if (const std::optional<OleDate> date = ParseYearMonthDay(text)) return *date;
    if (const std::optional<OleDate> date = ParseDayMonthYear(text)) return *date;
    ThrowTypeMismatch();
}

std::string DateText(OleDate date) {
    if (!std::isfinite(date.days)) return {};
    double day = std::trunc(date.days);
    auto seconds = static_cast<int>(std::lround(std::fabs(date.days - day) * 86400));
    if (seconds == 86400) {
        day += 1;
        seconds = 0;
    }
    std::string text = FormatDayMonthYear({day});
    if (seconds == 0) return text;
    return text + " " + ZeroPadded(seconds / 3600, 2) + ":" + ZeroPadded(seconds / 60 % 60, 2) + ":" +
           ZeroPadded(seconds % 60, 2);
}

struct ToDoubleVisitor {
    double operator()(Empty) const { return 0; }
    double operator()(Null) const { ThrowInvalidUseOfNull(); }
    double operator()(std::int64_t number) const { return static_cast<double>(number); }
    double operator()(double number) const { return number; }
    double operator()(OleDate date) const { return date.days; }
    double operator()(const std::string& text) const { return NumberFromText(text); }
};

struct ToIntegerVisitor {
    std::int64_t operator()(Empty) const { return 0; }
    std::int64_t operator()(Null) const { ThrowInvalidUseOfNull(); }
    std::int64_t operator()(std::int64_t number) const { return number; }
    std::int64_t operator()(double number) const { return RoundedInteger(number); }
    std::int64_t operator()(OleDate date) const { return RoundedInteger(date.days); }
    std::int64_t operator()(const std::string& text) const { return IntegerFromText(text); }
};

struct ToDateVisitor {
    OleDate operator()(Empty) const { return {}; }
    OleDate operator()(Null) const { ThrowInvalidUseOfNull(); }
    OleDate operator()(std::int64_t number) const { return {static_cast<double>(number)}; }
    OleDate operator()(double number) const { return {number}; }
    OleDate operator()(OleDate date) const { return date; }
    OleDate operator()(const std::string& text) const { return DateFromText(text); }
};

struct ToTextVisitor {
    std::string operator()(Empty) const { return {}; }
    std::string operator()(Null) const { return {}; }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(double number) const { return NumberText(number); }
    std::string operator()(OleDate date) const { return DateText(date); }
    std::string operator()(const std::string& text) const { return text; }
};

}  // namespace

double Value::ToDouble() const {
    return std::visit(ToDoubleVisitor{}, content_);
}

std::int64_t Value::ToInteger() const {
    return std::visit(ToIntegerVisitor{}, content_);
}

OleDate Value::ToDate() const {
    return std::visit(ToDateVisitor{}, content_);
}

std::string Value::ToText() const {
    return std::visit(ToTextVisitor{}, content_);
}

}  // namespace tavrin::data
