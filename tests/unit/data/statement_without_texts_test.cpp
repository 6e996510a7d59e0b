#include "data/statement_without_texts.h"

#include <gtest/gtest.h>

#include <string>

namespace tavrin::data {
namespace {

TEST(StatementWithoutTexts, IsTheStatementWhereNothingIsQuoted) {
    EXPECT_EQ(StatementWithoutTexts("SELECT An FROM An"), "SELECT An FROM An");
    EXPECT_EQ(StatementWithoutTexts(""), "");
}

TEST(StatementWithoutTexts, EndsAtTheFirstTextAndGoesOnAfterTheLast) {
    EXPECT_EQ(StatementWithoutTexts("DELETE FROM [AGENDA] WHERE Nume = 'Popa' AND Prenume = 'Ion'"),
              "DELETE FROM [AGENDA] WHERE Nume = '...'");
    EXPECT_EQ(StatementWithoutTexts("INSERT INTO LpVal (Valuta, Curs) VALUES ('EUR', 0)"),
              "INSERT INTO LpVal (Valuta, Curs) VALUES ('...', 0)");
    EXPECT_EQ(StatementWithoutTexts("A ''"), "A '...'");
}

TEST(StatementWithoutTexts, KeepsADayAndARangeOfDays) {
    for (const char* statement : {"DELETE FROM [Curs Valutar] WHERE [Data] = '05-20-2003'",
                                  "Where Data between  '2003-05-01' and '2003-05-31' ORDER BY [Data]"}) {
        EXPECT_EQ(StatementWithoutTexts(statement), statement);
    }
}

TEST(StatementWithoutTexts, KeepsNoOtherNumber) {
    for (const char* text :
         {"0722 123 456", "0722123456", "2003-5-1", "1960-01-01x", "", "2003-05-01' and '7"})
        EXPECT_EQ(StatementWithoutTexts("A '" + std::string(text) + "' B"), "A '...' B") << text;
}

TEST(StatementWithoutTexts, KeepsNoDayAmongOtherTexts) {
    EXPECT_EQ(StatementWithoutTexts("A '2003-05-01' AND B = '2003-05-01'"), "A '...'");
}

TEST(StatementWithoutTexts, IsNotMisledByApostrophesInTexts) {
    for (const char* text : {"D'Arc", "x 'y' z", "'", "1' Popa '2", "2003-05-01' Popa '2003-05-01"})
        EXPECT_EQ(StatementWithoutTexts("A '" + std::string(text) + "' B"), "A '...' B") << text;
}

TEST(StatementWithoutTexts, TellsNothingAfterAQuoteThatDoesNotEnd) {
    EXPECT_EQ(StatementWithoutTexts("A 'Popa"), "A '...");
}

}  // namespace
}  // namespace tavrin::data
