// Calendar arithmetic on OLE dates and the two fixed date formats.
#include "data/text/date.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>

#include "data/text/digits.h"

namespace tavrin::data {
namespace {

constexpr double FirstDay = -657434;  // 1 January 100
constexpr double LastDay = 2958465;   // 31 December 9999
constexpr int FarthestYear = 32'000;  // of std::chrono's, with room for months to carry over
constexpr std::chrono::sys_days OleEpoch = std::chrono::year(1899) / std::chrono::December / 30;

/// The first day of a month; months beyond December are of the next year, and so on, and those before January
/// of the last.
std::chrono::year_month_day FirstOfMonth(int year, int month) {
    const std::chrono::year_month january =
        std::chrono::year(std::clamp(year, -FarthestYear, FarthestYear)) / std::chrono::January;
    return (january + std::chrono::months(month - 1)) / 1;
}

double ClampedDay(double days) {
    return std::isnan(days) ? 0 : std::clamp(std::trunc(days), FirstDay, LastDay);
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
    const auto date =
        std::chrono::sys_days(FirstOfMonth(day.year, day.month)) + std::chrono::days(day.day - 1);
    return {static_cast<double>((date - OleEpoch).count())};
}

CalendarDay ToCalendarDay(OleDate date) {
    const std::chrono::days days(static_cast<int>(ClampedDay(date.days)));
    const std::chrono::year_month_day day(OleEpoch + days);
    return {static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
            static_cast<int>(static_cast<unsigned>(day.day()))};
}

int DaysInMonth(int year, int month) {
    const std::chrono::year_month_day first = FirstOfMonth(year, month);
    const std::chrono::day last = (first.year() / first.month() / std::chrono::last).day();
    return static_cast<int>(static_cast<unsigned>(last));
}

long long RoundedDay(OleDate date) {
    if (std::isnan(date.days)) return 0;
    const double limit = 1e15;  // far beyond every date, and exact in both types
    const double days = std::clamp(date.days, -limit, limit);
    return static_cast<long long>(days - std::remainder(days, 1.0));
}

std::string FormatYearMonthDay(OleDate date) {
    const CalendarDay day = ToCalendarDay(date);
    return ZeroPadded(day.year, 4) + "-" + ZeroPadded(day.month, 2) + "-" + ZeroPadded(day.day, 2);
}

std::string FormatDayMonthYear(OleDate date) {
    const CalendarDay day = ToCalendarDay(date);
    return ZeroPadded(day.day, 2) + "/" + ZeroPadded(day.month, 2) + "/" + ZeroPadded(day.year, 4);
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
