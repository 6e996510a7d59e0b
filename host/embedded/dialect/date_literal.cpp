#include "host/embedded/dialect/date_literal.h"

#include <charconv>
#include <cmath>
#include <optional>

#include "data/text/date.h"
#include "host/embedded/dialect/provider_error.h"

namespace tavrin::host::dialect {
namespace {

constexpr double SecondsInDay = 86400;

struct Number {
    int value = 0;
    std::size_t digits = 0;
};

/// Takes numbers and separators off the front of a date text.
class Reader {
  public:
    explicit Reader(std::string_view text) : rest_(text) {}

    bool AtEnd() const { return rest_.empty(); }

    Number TakeNumber(std::size_t fewest, std::size_t most) {
        Number number;
        number.digits = rest_.find_first_not_of("0123456789");
        if (number.digits == std::string_view::npos) number.digits = rest_.size();
        if (number.digits < fewest || number.digits > most) throw BadDate();
        std::from_chars(rest_.data(), rest_.data() + number.digits, number.value);
        rest_.remove_prefix(number.digits);
        return number;
    }

    bool StartsWithTime() const {
        const std::size_t afterDigits = rest_.find_first_not_of("0123456789");
        return afterDigits != std::string_view::npos && rest_[afterDigits] == ':';
    }

    std::optional<char> TakeAnyOf(std::string_view separators) {
        if (rest_.empty() || separators.find(rest_.front()) == std::string_view::npos) return std::nullopt;
        const char taken = rest_.front();
        rest_.remove_prefix(1);
        return taken;
    }

    bool SkipBlanks() {
        const std::size_t before = rest_.size();
        while (TakeAnyOf(" "))
            continue;
        return rest_.size() < before;
    }

  private:
    std::string_view rest_;
};

int FullYear(Number year) {
    if (year.digits > 2) return year.value;
    return year.value < 50 ? 2000 + year.value : 1900 + year.value;
}

double DayOf(int year, int month, int day) {
    const bool exists = month >= 1 && month <= 12 && day >= 1 && day <= data::DaysInMonth(year, month);
    if (!exists || year < 1753) throw DateOutOfRange();
    return data::ToOleDate({year, month, day}).days;
}

double TakeDay(Reader& reader) {
    const Number first = reader.TakeNumber(1, 8);
    if (first.digits == 8) return DayOf(first.value / 10000, first.value / 100 % 100, first.value % 100);
    const std::optional<char> separator = reader.TakeAnyOf("-/.");
    if (!separator) throw BadDate();
    const Number second = reader.TakeNumber(1, 2);
    if (reader.TakeAnyOf("-/.") != separator) throw BadDate();
    if (first.digits == 4) return DayOf(first.value, second.value, reader.TakeNumber(1, 2).value);
    if (first.digits > 2) throw BadDate();
    const Number year = reader.TakeNumber(2, 4);
    if (year.digits == 3) throw BadDate();
    return DayOf(FullYear(year), first.value, second.value);
}

double TakeSecondFraction(Reader& reader) {
    const Number fraction = reader.TakeNumber(1, 3);
    return fraction.value / std::pow(10.0, static_cast<double>(fraction.digits));
}

double TakeTime(Reader& reader) {
    const int hour = reader.TakeNumber(1, 2).value;
    if (!reader.TakeAnyOf(":")) throw BadDate();
    const int minute = reader.TakeNumber(1, 2).value;
    const int second = reader.TakeAnyOf(":") ? reader.TakeNumber(1, 2).value : 0;
    const double fraction = reader.TakeAnyOf(".") ? TakeSecondFraction(reader) : 0;
    if (hour > 23 || minute > 59 || second > 59) throw DateOutOfRange();
    return (hour * 3600 + minute * 60 + second + fraction) / SecondsInDay;
}

data::OleDate RoundedToMinute(data::OleDate date) {
    const double minutes = 1440;
    const data::OleDate rounded{std::round(date.days * minutes) / minutes};
    const bool inRange = rounded.days >= data::ToOleDate({1900, 1, 1}).days &&
                         rounded.days < data::ToOleDate({2079, 6, 7}).days;
    if (!inRange) throw DateOutOfRange();
    return rounded;
}

// COM counts the time of day forward also where the day is negative.
data::OleDate Combined(double day, double time) {
    return {day < 0 ? day - time : day + time};
}

}  // namespace

data::OleDate ParseDateLiteral(std::string_view text, TypeKind type) {
    Reader reader(text);
    reader.SkipBlanks();
    const bool timeAlone = reader.StartsWithTime();
    double day = data::ToOleDate({1900, 1, 1}).days;
    double time = 0;
    if (!reader.AtEnd() && !timeAlone) day = TakeDay(reader);
    const bool separated = reader.SkipBlanks();
    if (!reader.AtEnd() && (timeAlone || separated)) time = TakeTime(reader);
    reader.SkipBlanks();
    if (!reader.AtEnd()) throw BadDate();
    const data::OleDate date = Combined(day, time);
    return type == TypeKind::SmallDateTime ? RoundedToMinute(date) : date;
}

}  // namespace tavrin::host::dialect
