#include "data/text/date.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tavrin::data {
namespace {

TEST(OleDates, CountFromTheirFirstDay) {
    EXPECT_EQ(ToOleDate({1899, 12, 30}).days, 0);
    EXPECT_EQ(ToOleDate({1900, 1, 1}).days, 2);
    EXPECT_EQ(ToOleDate({2003, 5, 20}).days, 37761);
    EXPECT_EQ(ToOleDate({1899, 12, 29}).days, -1);
    EXPECT_EQ(ToOleDate({100, 1, 1}).days, -657434);
    EXPECT_EQ(ToOleDate({9999, 12, 31}).days, 2958465);
}

TEST(OleDatesThorough, EveryDayComesBack) {
    for (double day = -657434; day <= 2958465; ++day) {
        const CalendarDay calendarDay = ToCalendarDay({day});
        ASSERT_EQ(ToOleDate(calendarDay).days, day) << calendarDay.year << '-' << calendarDay.month;
    }
}

TEST(OleDates, MonthsAndDaysCarryOver) {
    EXPECT_EQ(ToOleDate({2003, 13, 1}), ToOleDate({2004, 1, 1}));
    EXPECT_EQ(ToOleDate({2003, 0, 1}), ToOleDate({2002, 12, 1}));
    EXPECT_EQ(ToOleDate({2003, -11, 1}), ToOleDate({2002, 1, 1}));
    EXPECT_EQ(ToOleDate({2003, 3, 0}), ToOleDate({2003, 2, 28}));
    EXPECT_EQ(ToOleDate({2003, 1, 32}), ToOleDate({2003, 2, 1}));
}

TEST(OleDates, YearsThatNoDateHasStayOutOfReach) {
    for (const int year : {32766, 32767, 32768, 2'000'000'000}) {
        EXPECT_EQ(ToCalendarDay(ToOleDate({year, 12, 31})), (CalendarDay{9999, 12, 31})) << year;
        EXPECT_EQ(ToCalendarDay(ToOleDate({-year, 1, 1})), (CalendarDay{100, 1, 1})) << year;
    }
}

TEST(OleDates, TheDayDropsTheTime) {
    EXPECT_EQ(ToCalendarDay({37761.999}), (CalendarDay{2003, 5, 20}));
    EXPECT_EQ(ToCalendarDay({-1.75}), (CalendarDay{1899, 12, 29}));
}

TEST(OleDates, AbsurdDatesAreClamped) {
    EXPECT_EQ(ToCalendarDay({1e300}), (CalendarDay{9999, 12, 31}));
    EXPECT_EQ(ToCalendarDay({-HUGE_VAL}), (CalendarDay{100, 1, 1}));
    EXPECT_EQ(ToCalendarDay({std::nan("")}), (CalendarDay{1899, 12, 30}));
}

TEST(OleDates, MonthsHaveTheirLengths) {
    EXPECT_EQ(DaysInMonth(2003, 2), 28);
    EXPECT_EQ(DaysInMonth(2004, 2), 29);
    EXPECT_EQ(DaysInMonth(1900, 2), 28);
    EXPECT_EQ(DaysInMonth(2000, 2), 29);
    EXPECT_EQ(DaysInMonth(2003, 12), 31);
}

TEST(OleDates, RoundToTheNearestDayAndHalvesToEven) {
    EXPECT_EQ(RoundedDay({2.5}), 2);
    EXPECT_EQ(RoundedDay({3.5}), 4);
    EXPECT_EQ(RoundedDay({3.49}), 3);
    EXPECT_EQ(RoundedDay({-2.5}), -2);
    EXPECT_EQ(RoundedDay({std::nan("")}), 0);
}

TEST(DateFormats, AreFixed) {
    EXPECT_EQ(FormatYearMonthDay(ToOleDate({2003, 5, 9})), "2003-05-09");
    EXPECT_EQ(FormatDayMonthYear(ToOleDate({2003, 5, 9})), "09/05/2003");
    EXPECT_EQ(FormatDayMonthYear(ToOleDate({100, 1, 1})), "01/01/0100");
    EXPECT_EQ(FormatYearMonthDay({37761.75}), "2003-05-20");
}

TEST(DateFormats, ReadOnlyExistingDays) {
    EXPECT_EQ(ParseDayMonthYear("29/02/2004"), ToOleDate({2004, 2, 29}));
    EXPECT_EQ(ParseYearMonthDay("2004-02-29"), ToOleDate({2004, 2, 29}));
    for (const char* const text : {"", "29/02/2003", "00/01/2003", "01/13/2003", "1/1/2003", "01-01-2003",
                                   "-1/01/2003", "+1/01/2003", "01/01/20030", "01/01/0099", "aa/bb/cccc"}) {
        EXPECT_EQ(ParseDayMonthYear(text), std::nullopt) << text;
    }
    EXPECT_EQ(ParseYearMonthDay("2003-02-29"), std::nullopt);
    EXPECT_EQ(ParseYearMonthDay("20/02/2003"), std::nullopt);
}

}  // namespace
}  // namespace tavrin::data
