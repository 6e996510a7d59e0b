// The user changes the region's settings while windows are open.

#include <gmock/gmock.h>

#include "windows/calculator_fixture.h"

namespace tavrin::tests {
namespace {

class UserLocaleTest : public CalculatorTest {};

TEST_F(UserLocaleTest, ACalculatorThatOpensAfterAChangeUsesTheNewSettings) {
    Open().Unload();
    SpeakEnglish();
    Open();
    EXPECT_EQ(Calculator()->Decimal.Caption(), ".");
    keyboard.Type("1234.5");
    EXPECT_EQ(Shown(), "1,234.50 Lei | 1,234.50 Valuta");
}

TEST_F(UserLocaleTest, ACalculatorThatIsOpenGoesOnInItsOwn) {
    Open();
    keyboard.Type("1234.5");
    SpeakEnglish();
    keyboard.Type("+1.25");
    keyboard.Press(forms::key::Enter);
    EXPECT_EQ(Shown(), "1.235,75 Lei | 1.235,75 Valuta");
    EXPECT_EQ(Calculator()->Decimal.Caption(), ",");
}

TEST_F(UserLocaleTest, AChooserThatOpensAfterAChangeReadsRatesInTheNewSettings) {
    Run("UPDATE [Curs Valutar] SET [$] = 1234.5");
    Open();
    SpeakEnglish();
    OpenChooser();
    keyboard.Press(forms::key::Enter);
    EXPECT_EQ(Calculator()->CursCurent(), 1234.5);
    EXPECT_EQ(Calculator()->lblCurs.Caption(), "Cursul este de  1,234.50 Lei pentru 1 $");
}

TEST_F(UserLocaleTest, ARateListThatOpensAfterAChangeNamesTheMonthsAnew) {
    rates::CursValutar& list = OpenList();
    EXPECT_EQ(list.dpDataFin.Text(), "20/mai/03");
    desktop.locale.monthAbbreviations[4] = "May";
    EXPECT_EQ(list.dpDataFin.Text(), "20/mai/03") << "an open window keeps its own";
    list.Unload();
    EXPECT_EQ(OpenList().dpDataFin.Text(), "20/May/03");
}

}  // namespace
}  // namespace tavrin::tests
