#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavrin::data {

/// A point in time as COM counts it: days since 1899-12-30, the time of day in the fraction.
/// For days before 1899-12-30 the integral part is negative and the fraction still counts forward.
struct OleDate {
    double days = 0;
    bool operator==(const OleDate&) const = default;
};

/// A day of the proleptic Gregorian calendar. Years beyond 32,000 count as that one, before and after our
/// era.
struct CalendarDay {
    int year = 1899;
    int month = 12;  ///< 1 to 12
    int day = 30;    ///< 1 to 31
    bool operator==(const CalendarDay&) const = default;
};

/// Out-of-range months and days carry over, as DateSerial does: (2003, 13, 1) is 1 January 2004.
OleDate ToOleDate(CalendarDay day);

/// The day that a date falls on; its time of day is dropped. Dates before the year 100 or after 9999, which
/// no OLE date can be, are clamped to the first or last day of that span.
CalendarDay ToCalendarDay(OleDate date);

/// 28 to 31. Out-of-range months carry over.
int DaysInMonth(int year, int month);

/// The day count rounded to the nearest whole day, ties to even.
long long RoundedDay(OleDate date);

std::string FormatYearMonthDay(OleDate date);  ///< "yyyy-mm-dd"
std::string FormatDayMonthYear(OleDate date);  ///< "dd/mm/yyyy"

/// "dd/mm/yyyy"; nothing when the text is not such a date.
std::optional<OleDate> ParseDayMonthYear(std::string_view text);

/// "yyyy-mm-dd"; nothing when the text is not such a date.
std::optional<OleDate> ParseYearMonthDay(std::string_view text);

}  // namespace tavrin::data
