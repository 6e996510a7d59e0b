// The windows that the rate list opens, on the demo data and with real input: the entry of a day, the adding
// of a currency, the evolution chart. What they did is read back from the database.

#include <oleacc.h>

#include "e2e/driver/accessible_reader.h"
#include "e2e/driver/clipboard.h"
#include "e2e/host_test.h"
#include "win32/system/number_format.h"

namespace tavrin::e2e {
namespace {

using testing::HasSubstr;

// 14 June 2003 is a Saturday: the demo data has no rates for it. Company 1 has frozen its rates to 31 March
// 2003.
constexpr HostValues Saturday{2003, 6, 14, 2};
constexpr HostValues FrozenSaturday{2003, 3, 29, 1};

class RateWindowsTest : public HostTest {
  protected:
    RateWindowsTest() : HostTest(LoopKind::Plain) {}

    Window Action(const Window& window, int index) {
        return window.Control("cmdAction(" + std::to_string(index) + ")");
    }

    Window OpenEntry(const HostValues& values = Saturday) {
        list = OpenRateList(values);
        Click(Action(list, 0));
        const Window entry = AwaitForm("CursValutarDetaliu");
        EXPECT_TRUE(AwaitFocus("DataCurs"));
        return entry;
    }

    std::vector<std::vector<std::string>> RatesOf(const std::string& day) {
        return host->Rows("SELECT [EUR],[USD] FROM [Curs Valutar] WHERE [Data] = '" + day + "'");
    }

    /// Types a value into the cell that is being edited and goes on to the next.
    void TypeRate(const char* digits) {
        ASSERT_TRUE(AwaitFocus("txtCursValutar"));
        TypeText(digits);
        PressKey(VK_RETURN);
        host->Ui().Settle();
    }

    Window list;
};

// The entry of a day.

TEST_F(RateWindowsTest, ARateIsPastedByKeyboardAndALongerOneIsRefused) {
    OpenEntry();
    PressKey(VK_RETURN);
    const auto paste = [this](const std::string& text) {
        ASSERT_TRUE(AwaitFocus("txtCursValutar"));
        host->Call([&] { PutOnClipboard(text); });
        PressKey('V', {VK_CONTROL});
        PressKey(VK_RETURN);
    };
    paste("1000000000000000");
    ExpectMessage("Valoarea poate avea cel mult 15 cifre !", MessageIcon::Information,
                  "Curs Valutar - Adaugare", {IDOK}, IDOK);
    paste("37500");
    ASSERT_TRUE(AwaitFocus("txtCursValutar"));
    host->Ui().Settle();
    const TableTexts cells = ReadTable(host->Ui(), AwaitForm("CursValutarDetaliu").Control("Grid"));
    EXPECT_EQ(cells[1][1], "37,500");
}

TEST_F(RateWindowsTest, ADayIsAddedByKeyboardAlone) {
    const Window entry = OpenEntry();
    EXPECT_EQ(entry.Text(), "Curs Valutar - Adaugare");
    EXPECT_TRUE(entry.IsTopmost());
    EXPECT_FALSE(list.IsEnabled());
    ASSERT_TRUE(AwaitFocus("DataCurs"));
    PressKey(VK_RETURN);
    TypeRate("37500");
    EXPECT_EQ(ReadTable(host->Ui(), entry.Control("Grid"))[1][1], "37,500");
    TypeRate("31900");
    while (FocusedName() == "txtCursValutar")
        TypeRate("7");
    ASSERT_TRUE(AwaitFocus("cmdAction(0)"));
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitClosed("CursValutarDetaliu"));
    EXPECT_EQ(RatesOf("2003-06-14"), (std::vector<std::vector<std::string>>{{"37500", "31900"}}));
    EXPECT_TRUE(list.IsEnabled());
    ASSERT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(ReadTable(host->Ui(), list.Control("Grid")).back()[0], "14/06/2003");
}

TEST_F(RateWindowsTest, OnlyDigitsReachACell) {
    const Window entry = OpenEntry();
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("txtCursValutar"));
    TypeText("1A2 3");
    PressKey(VK_OEM_PERIOD);
    PressKey(VK_OEM_MINUS);
    TypeText("4");
    host->Ui().Settle();
    EXPECT_EQ(ReadAccessible(host->Ui(), entry.Control("txtCursValutar")).value, "1234");
}

TEST_F(RateWindowsTest, AnEmptyCellIsRefused) {
    OpenEntry();
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("txtCursValutar"));
    PressKey(VK_BACK);
    PressKey(VK_RETURN);
    ExpectMessage("Valoare obligatorie !", MessageIcon::Information, "Curs Valutar - Adaugare", {IDOK}, IDOK);
    EXPECT_TRUE(AwaitFocus("txtCursValutar"));
}

TEST_F(RateWindowsTest, FifteenDigitsAreKeptAndASixteenthIsNot) {
    const Window entry = OpenEntry();
    PressKey(VK_RETURN);
    TypeRate("9999999999999991");
    EXPECT_EQ(ReadTable(host->Ui(), entry.Control("Grid"))[1][1], "999,999,999,999,999");
    Click(Action(entry, 0));
    ASSERT_TRUE(AwaitClosed("CursValutarDetaliu"));
    EXPECT_EQ(
        host->Rows("SELECT 'x' FROM [Curs Valutar] WHERE [Data] = '2003-06-14' AND EUR = 999999999999999")
            .size(),
        1U);
}

TEST_F(RateWindowsTest, TheWheelTakesTheEditorAlongWithItsCell) {
    for (int i = 0; i < 20; ++i)
        host->Run("ALTER TABLE [Curs Valutar] ADD [C" + std::to_string(i) + "] float");
    const Window entry = OpenEntry();
    const Window grid = entry.Control("Grid");
    const Window editor = entry.Control("txtCursValutar");
    const auto valueCell = [&](int row) {
        return ReadParts(host->Ui(), grid)[2 * static_cast<std::size_t>(row) + 1].place;
    };
    const auto roll = [&](int notches) {
        SendMessageW(grid.Handle(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(notches * WHEEL_DELTA)),
                     0);
        host->Ui().Settle();
    };
    PressKey(VK_RETURN);
    for (int row = 1; row < 5; ++row)
        TypeRate("1");
    ASSERT_TRUE(AwaitFocus("txtCursValutar"));
    roll(-1);
    const RECT cell = valueCell(5);
    const RECT field = editor.ScreenBounds();
    EXPECT_TRUE(EqualRect(&cell, &field)) << field.top << " instead of " << cell.top;
    roll(-1);
    EXPECT_EQ(editor.Height(), 0) << "its cell is out of sight";
    TypeRate("55");
    EXPECT_EQ(ReadTable(host->Ui(), grid)[5][1], "55");
}

TEST_F(RateWindowsTest, AClickOnAnotherRowLeavesARefusedCellWhereItIs) {
    const Window entry = OpenEntry();
    const Window grid = entry.Control("Grid");
    PressKey(VK_RETURN);
    TypeRate("5");
    PressKey(VK_BACK);
    const RECT first = ReadParts(host->Ui(), grid)[2].place;
    ClickAt({first.left + 10, (first.top + first.bottom) / 2});
    ExpectMessage("Valoare obligatorie !", MessageIcon::Information, "Curs Valutar - Adaugare", {IDOK}, IDOK);
    ASSERT_TRUE(AwaitFocus("txtCursValutar"));
    TypeRate("7");
    const TableTexts rates = ReadTable(host->Ui(), grid);
    EXPECT_EQ(rates[1][1], "5");
    EXPECT_EQ(rates[2][1], "7");
}

TEST_F(RateWindowsTest, AZeroIsShownAndStoredAsZero) {
    const Window entry = OpenEntry();
    PressKey(VK_RETURN);
    TypeRate("0");
    EXPECT_EQ(ReadTable(host->Ui(), entry.Control("Grid"))[1][1], "0");
    Click(Action(entry, 0));
    ASSERT_TRUE(AwaitClosed("CursValutarDetaliu"));
    EXPECT_EQ(RatesOf("2003-06-14")[0][0], "0");
}

TEST_F(RateWindowsTest, ADayIsModified) {
    list = OpenRateList({2003, 6, 16, 2});
    const std::string day = ReadTable(host->Ui(), list.Control("Grid"))[1][0];
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("cmdAction(1)"));
    PressKey(VK_RETURN);
    const Window entry = AwaitForm("CursValutarDetaliu");
    EXPECT_EQ(entry.Text(), "Curs Valutar - Modificare");
    EXPECT_FALSE(entry.Control("DataCurs").IsEnabled());
    ASSERT_TRUE(AwaitFocus("Grid"));
    PressKey(VK_RETURN);
    TypeRate("41234");
    Click(Action(entry, 0));
    ASSERT_TRUE(AwaitClosed("CursValutarDetaliu"));
    const TableTexts shown = ReadTable(host->Ui(), list.Control("Grid"));
    EXPECT_EQ(shown[1][0], day);
    EXPECT_EQ(shown[1][1], "41234");
}

TEST_F(RateWindowsTest, AFrozenDayIsRefused) {
    const Window entry = OpenEntry(FrozenSaturday);
    Click(Action(entry, 0));
    ExpectMessage(
        "Data documentului introdus nu poate fi mai mica decit data ultimei validari \r\n"
        "Data ultimei validari : 31/03/2003\r\nData document introdus : 29/03/2003\r\nAlegeti alta data !",
        MessageIcon::Information, "DATA GRESITA", {IDOK}, IDOK);
    EXPECT_TRUE(AwaitFocus("DataCurs"));
    EXPECT_TRUE(RatesOf("2003-03-29").empty());
}

TEST_F(RateWindowsTest, ADayThatExistsIsRefused) {
    const Window entry = OpenEntry({2003, 6, 16, 2});
    Click(Action(entry, 0));
    ExpectMessage("Exista curs valutar la aceasta data!", MessageIcon::Information, "Curs Valutar - Adaugare",
                  {IDOK}, IDOK);
    EXPECT_TRUE(AwaitFocus("DataCurs"));
}

TEST_F(RateWindowsTest, GivingUpEnablesTheListAndFocusesItsGrid) {
    OpenEntry();
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(AwaitClosed("CursValutarDetaliu"));
    EXPECT_TRUE(list.IsEnabled());
    EXPECT_TRUE(AwaitFocus("Grid"));
}

// A new currency.

TEST_F(RateWindowsTest, ACurrencyIsAddedAndShownAtOnce) {
    list = OpenRateList(Saturday);
    Click(Action(list, 3));
    AwaitForm("CereMoneda");
    EXPECT_FALSE(list.IsEnabled());
    ASSERT_TRUE(AwaitFocus("txtMoneda"));
    TypeText("XAU");
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("cmdAction(0)"));
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitClosed("CereMoneda"));
    EXPECT_TRUE(list.IsEnabled());
    const TableTexts shown = ReadTable(host->Ui(), list.Control("Grid"));
    EXPECT_EQ(shown[0].back(), "XAU");
    EXPECT_EQ(shown[1].back(), "0");
    EXPECT_EQ(host->Rows("SELECT Curs FROM LpVal WHERE Valuta = 'XAU'").size(), 1U);
}

TEST_F(RateWindowsTest, ACurrencyThatExistsIsRefused) {
    list = OpenRateList(Saturday);
    Click(Action(list, 3));
    const Window window = AwaitForm("CereMoneda");
    ASSERT_TRUE(AwaitFocus("txtMoneda"));
    TypeText("EUR");
    Click(Action(window, 0));
    ExpectMessage("Moneda deja existenta ! Alegeti alta moneda !", MessageIcon::Information, window.Text(),
                  {IDOK}, IDOK);
    EXPECT_TRUE(AwaitFocus("txtMoneda"));
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(AwaitClosed("CereMoneda"));
    EXPECT_TRUE(list.IsEnabled());
}

// The evolution.

TEST_F(RateWindowsTest, AMonthAndAYearAreDrawnByKeyboardAlone) {
    list = OpenRateList(Saturday);
    Click(Action(list, 5));
    const Window window = AwaitForm("EvolutieCurs");
    ASSERT_TRUE(AwaitClosed("CursValutar"));
    EXPECT_EQ(host->Iesire(), 1);
    ASSERT_TRUE(AwaitFocus("cmbAn"));
    EXPECT_FALSE(window.Control("MSChart1").IsVisible());
    EXPECT_TRUE(window.Control("lblMesaj1").IsVisible());
    PressKey(VK_DOWN);
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("cmbLuna"));
    PressKey(VK_DOWN);
    PressKey(VK_RETURN);
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("cmdAction(1)"));
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("Grid"));
    const auto stored = host->Rows(
        "SELECT DAY(Data) as Data, [EUR] FROM [Curs Valutar] WHERE YEAR(Data) = 2002 And Month(Data) = 2 "
        "ORDER BY Data");
    ASSERT_FALSE(stored.empty());
    TableTexts shown = ReadTable(host->Ui(), window.Control("Grid"));
    ASSERT_EQ(shown.size(), stored.size() + 1);
    EXPECT_EQ(shown[1], stored[0]);
    const AccessibleFacts chart = ReadAccessible(host->Ui(), window.Control("MSChart1"));
    EXPECT_EQ(chart.childCount, static_cast<int>(stored.size()));
    EXPECT_THAT(chart.value, HasSubstr(stored[0][0] + ": " + stored[0][1]));

    Click(window.Control("cmbLuna"));
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(AwaitFocus("cmbLuna"));
    PressKey(VK_END);
    Click(Action(window, 1));
    ASSERT_TRUE(AwaitFocus("Grid"));
    shown = ReadTable(host->Ui(), window.Control("Grid"));
    EXPECT_EQ(shown.size(), 13U);
    EXPECT_EQ(ReadAccessible(host->Ui(), window.Control("MSChart1")).childCount, 12);
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(AwaitClosed("EvolutieCurs"));
}

TEST_F(RateWindowsTest, AMonthWithoutRatesSaysSo) {
    host->Run("DELETE FROM [Curs Valutar] WHERE [Data] BETWEEN '2001-01-01' AND '2001-01-31'");
    list = OpenRateList(Saturday);
    Click(Action(list, 5));
    const Window window = AwaitForm("EvolutieCurs");
    Click(Action(window, 1));
    ASSERT_TRUE(AwaitFocus("cmbAn"));
    EXPECT_TRUE(WaitUntil([&] { return window.Control("lblMesaj2").IsVisible(); }));
    EXPECT_FALSE(window.Control("MSChart1").IsVisible());
}

// Number formatting: the platform's and the portable one agree.

TEST(NumberFormatTest, ThePlatformAgreesWithThePortableTwin) {
    int compared = 0;
    const auto compare = [&](const std::string& number) {
        const std::string platform = win32::FormatPlatformNumber(number, {});
        EXPECT_EQ(platform, data::FormatNumber(number, {})) << number;
        ++compared;
    };
    for (long long number = 1; number < 1'000'000'000'000'000; number = number * 3 / 2 + 1) {
        compare(std::to_string(number));
        compare(std::to_string(number) + ".5");
        compare(std::to_string(number) + ".499999");
    }
    for (int number = 1; number <= 4000; ++number)
        compare(std::to_string(number * 37));
    for (int cents = 51; cents < 1000; cents += 7) {
        compare(std::to_string(cents / 100) + "." + std::to_string(cents % 100 + 100).substr(1));
    }
    EXPECT_GT(compared, 4000);
}

}  // namespace
}  // namespace tavrin::e2e
