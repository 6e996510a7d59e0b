// Calendar arithmetic on OLE dates and the two fixed date formats.
#include "data/text/date.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace tavrin::data {
namespace {

constexpr double FirstDay = -657434;  // 1 January 100
constexpr double LastDay = 2958465;   // 31 December 9999
constexpr long long OleEpochFromUnixEpoch = 25569;

// Counts from 1 January 1970 in eras of 400 years whose years begin in March, so that the leap day comes
// last.
long long DaysFromUnixEpoch(long long year, int month, long long day) {
    if (month <= 2) --year;
    const long long era = (year >= 0 ? year : year - 399) / 400;
    const long long yearOfEra = year - era * 400;
    const long long dayOfYear = (153LL * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const long long dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

CalendarDay FromUnixEpoch(long long days) {
    days += 719468;
    const long long era = (days >= 0 ? days : days - 146096) / 146097;
    const long long dayOfEra = days - era * 146097;
    const long long yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const long long dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const long long marchMonth = (5 * dayOfYear + 2) / 153;
    const int month = static_cast<int>(marchMonth < 10 ? marchMonth + 3 : marchMonth - 9);
    const long long year = yearOfEra + era * 400 + (month <= 2 ? 1 : 0);
    return {static_cast<int>(year), month, static_cast<int>(dayOfYear - (153 * marchMonth + 2) / 5 + 1)};
}

double ClampedDay(double days) {
    return std::isnan(days) ? 0 : std::clamp(std::trunc(days), FirstDay, LastDay);
}

std::string Padded(int number, std::size_t width) {
    std::string digits = std::to_string(number);
    if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
    return digits;
}

std::optional<int> Digits(std::string_view text) {
    int number = 0;
    if (text.empty() || text.front() == '-') return std::nullopt;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

std::optional<OleDate> ExistingDay(std::optional<int> year, std::optional<int> month,
                                   std::optional<int> day) {
    if (!year || !month || !day || *year < 100 || *month < 1 || *month > 12) return std::nullopt;
    if (*day < 1 || *day > DaysInMonth(*year, *month)) return std::nullopt;
    return ToOleDate({*year, *month, *day});
}

}  // namespace

OleDate ToOleDate(CalendarDay day) {
    const long long months = static_cast<long long>(day.year) * 12 + day.month - 1;
    const long long year = (months >= 0 ? months : months - 11) / 12;
    const int month = static_cast<int>(months - year * 12) + 1;
    return {static_cast<double>(DaysFromUnixEpoch(year, month, day.day) + OleEpochFromUnixEpoch)};
}

CalendarDay ToCalendarDay(OleDate date) {
    return FromUnixEpoch(static_cast<long long>(ClampedDay(date.days)) - OleEpochFromUnixEpoch);
}

int DaysInMonth(int year, int month) {
    const double first = ToOleDate({year, month, 1}).days;
    return static_cast<int>(ToOleDate({year, month + 1, 1}).days - first);
}

long long RoundedDay(OleDate date) {
    if (std::isnan(date.days)) return 0;
    const double limit = 1e15;  // far beyond every date, and exact in both types
    const double days = std::clamp(date.days, -limit, limit);
    return static_cast<long long>(days - std::remainder(days, 1.0));
}

std::string FormatYearMonthDay(OleDate date) {
    const CalendarDay day = ToCalendarDay(date);
    return Padded(day.year, 4) + "-" + Padded(day.month, 2) + "-" + Padded(day.day, 2);
}

std::string FormatDayMonthYear(OleDate date) {
    const CalendarDay day = ToCalendarDay(date);
    return Padded(day.day, 2) + "/" + Padded(day.month, 2) + "/" + Padded(day.year, 4);
}

std::optional<OleDate> ParseDayMonthYear(std::string_view text) {
    if (text.size() != 10 || text[2] != '/' || text[5] != '/') return std::nullopt;
    return ExistingDay(Digits(text.substr(6, 4)), Digits(text.substr(3, 2)), Digits(text.substr(0, 2)));
}

std::optional<OleDate> ParseYearMonthDay(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
    return ExistingDay(Digits(text.substr(0, 4)), Digits(text.substr(5, 2)), Digits(text.substr(8, 2)));
}

}  // namespace tavrin::data
