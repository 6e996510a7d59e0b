#include "data/text/date_format.h"

#include <gtest/gtest.h>

#include <string>

namespace tavrin::tests {
namespace {

std::string Format(std::string_view format, const data::CalendarDay& day) {
    std::string text;
    for (const data::DatePiece& piece : data::ParseDateFormat(format))
        text += piece.Text(day, data::Locale{});
    return text;
}

TEST(DateFormatTest, ShowsTheParts) {
    EXPECT_EQ(Format("dd/MM/yyyy", {2003, 5, 7}), "07/05/2003");
    EXPECT_EQ(Format("dd/MMM/yy", {2003, 5, 7}), "07/mai/03");
    EXPECT_EQ(Format("yyyy-MM-dd", {2003, 12, 31}), "2003-12-31");
}

TEST(DateFormatTest, AllElseStandsAsItIs) {
    EXPECT_EQ(Format("ziua dd!", {2003, 5, 7}), "ziua 07!");
    EXPECT_EQ(Format("", {2003, 5, 7}), "");
    EXPECT_EQ(Format("d M y", {2003, 5, 7}), "d M y");
}

TEST(DateFormatTest, FirstAndLastYears) {
    EXPECT_EQ(Format("yyyy", {100, 1, 1}), "0100");
    EXPECT_EQ(Format("yyyy", {9999, 12, 31}), "9999");
    EXPECT_EQ(Format("yy", {2000, 1, 1}), "00");
}

TEST(DateFormatTest, FixedTextIsOnePiece) {
    const auto pieces = data::ParseDateFormat("dd - MM");
    ASSERT_EQ(pieces.size(), 3U);
    EXPECT_EQ(pieces[1].fixedText, " - ");
    EXPECT_EQ(pieces[1].part, data::DatePart::None);
}

TEST(DateFormatTest, TwoDigitsNameAYearNearby) {
    EXPECT_EQ(data::FullYear(0), 2000);
    EXPECT_EQ(data::FullYear(29), 2029);
    EXPECT_EQ(data::FullYear(30), 1930);
    EXPECT_EQ(data::FullYear(99), 1999);
    EXPECT_EQ(data::FullYear(2003), 2003);
}

}  // namespace
}  // namespace tavrin::tests
