// Who lives on the keyboard types a whole task at once and does not look up. Here every key of a task is in
// the queue before the host's thread looks at the first: messages and windows open and close under it, and
// none may lose a key, nor take one that was meant for the next.

#include <windows.h>

#include <utility>

#include "e2e/driver/accessible_reader.h"
#include "e2e/driver/shown_message.h"
#include "e2e/host_test.h"
#include "win32/peers/rich_edit_stream.h"

namespace tavrin::e2e {
namespace {

using testing::Contains;
using testing::SizeIs;

using Rows = std::vector<std::vector<std::string>>;

// 14 June 2003 is a Saturday: the demo data has no rates for it.
constexpr HostValues DayToEnter{2003, 6, 14, 2};

// What a user presses to answer a message; its first button is the one that Enter presses.
void PressFirstButton() {
    PressKey(VK_RETURN);
}
void PressSecondButton() {
    PressKey(VK_RIGHT);
    PressKey(VK_RETURN);
}

void Press(WORD key, int times) {
    for (int i = 0; i < times; ++i)
        PressKey(key);
}

// From the palette as it opens, with the keyboard on the calculator.
void OpenNotes() {
    Press(VK_DOWN, 2);
    PressKey(VK_RETURN);
}
void OpenAgenda() {
    PressKey(VK_UP);
    PressKey(VK_RETURN);
}
void OpenCalculator() {
    PressKey(VK_RETURN);
}
void OpenList() {
    PressKey(VK_DOWN);
    PressKey(VK_RETURN);
}
/// From the rate list's grid to a button below "Modifica Curs".
void PressListButton(int below) {
    PressKey(VK_TAB);
    Press(VK_DOWN, below);
    PressKey(VK_RETURN);
}

class TypeAheadTest : public HostTest, public testing::WithParamInterface<LoopKind> {
  protected:
    TypeAheadTest() : HostTest(GetParam()) {}

    /// Types all of it while the host's thread stands still.
    template <class Keys>
    void TypeAhead(Keys&& keys) {
        host->Call(std::forward<Keys>(keys));
    }

    Rows Persons(const char* nume) {
        return host->Rows(std::string("SELECT Prenume, AdresaHome FROM Agenda WHERE Nume = '") + nume + "'");
    }

    /// The days from the first row of the rate list on.
    std::vector<std::string> DaysOfJune() {
        std::vector<std::string> days;
        for (const auto& row :
             host->Rows("SELECT CONVERT(nvarchar,[Data],103) FROM [Curs Valutar] WHERE [Data] "
                        "BETWEEN '2003-06-01' AND '2003-06-14' ORDER BY [Data]"))
            days.push_back(row[0]);
        return days;
    }

    int CurrencyCount() {
        auto columns = host->Call([&] { return host->Data().Columns("Curs Valutar"); });
        std::erase_if(columns, [](const std::string& name) { return name == "Data" || name == "Validat"; });
        return static_cast<int>(columns.size());
    }
};

TEST_P(TypeAheadTest, PersonsAreDeletedAndAddedInOneGo) {
    OpenPalette();
    const Rows before = host->Rows("SELECT Nume, Prenume FROM Agenda ORDER BY Nume, Prenume");
    TypeAhead([] {
        OpenAgenda();
        PressKey('S', {VK_MENU});
        PressSecondButton();
        PressKey('S', {VK_MENU});
        PressFirstButton();
        PressKey('A', {VK_MENU});
        TypeText("Marinica");
        PressKey(VK_RETURN);
        TypeText("Eva");
        PressKey(VK_TAB);
        TypeText("Bd Unirii 5");
        PressKey('C', {VK_MENU});
        PressKey(VK_ESCAPE);
        PressSecondButton();
        PressKey('A', {VK_MENU});
        TypeText("Zidaru");
        PressKey('C', {VK_MENU});  // without a first name: refused, and the focus goes to it
        PressFirstButton();
        TypeText("Ion");
        PressKey('C', {VK_MENU});
        PressKey(VK_ESCAPE);
        PressFirstButton();
    });
    Require("the last person", [&] { return !Persons("Zidaru").empty(); });
    EXPECT_TRUE(AwaitClosed("Agenda"));
    EXPECT_EQ(Persons("Marinica"), (Rows{{"Eva", "Bd Unirii 5"}}));
    EXPECT_EQ(Persons("Zidaru"), (Rows{{"Ion", ""}}));
    const Rows after = host->Rows("SELECT Nume, Prenume FROM Agenda");
    EXPECT_THAT(after, SizeIs(before.size() + 1));
    EXPECT_THAT(after, testing::Not(Contains(before[0])));
    EXPECT_THAT(after, Contains(before[1]));
}

TEST_P(TypeAheadTest, ADayIsDeletedAfterSecondThoughts) {
    OpenPalette(DayToEnter);
    std::vector<std::string> days = DaysOfJune();
    ASSERT_GT(days.size(), 4U);
    TypeAhead([] {
        OpenList();
        PressKey(VK_DOWN);
        PressListButton(1);
        PressSecondButton();
        Press(VK_DOWN, 2);
        PressListButton(1);
        PressFirstButton();
        PressKey(VK_ESCAPE);
    });
    Require("the list to close", [&] { return host->Iesire() == 1; });
    EXPECT_TRUE(AwaitClosed("CursValutar"));
    days.erase(days.begin() + 3);
    EXPECT_EQ(DaysOfJune(), days);
}

TEST_P(TypeAheadTest, ADayIsEnteredRowByRow) {
    OpenPalette(DayToEnter);
    const int currencies = CurrencyCount();
    ASSERT_GT(currencies, 2);
    TypeAhead([=] {
        OpenList();
        PressKey(VK_TAB);
        PressKey(VK_UP);
        PressKey(VK_RETURN);
        PressKey(VK_RETURN);  // from the day to the first row
        PressKey(VK_BACK);
        PressKey(VK_RETURN);  // nothing in it: refused
        PressFirstButton();
        for (int row = 0; row < currencies; ++row) {
            TypeText(std::to_string(30001 + row));
            PressKey(VK_RETURN);
        }
        PressKey(VK_RETURN);
        PressKey(VK_DOWN);  // in the list again
    });
    const auto stored = [&] {
        return host->Rows("SELECT [EUR],[USD] FROM [Curs Valutar] WHERE [Data] = '2003-06-14'");
    };
    Require("the day's rates", [&] { return !stored().empty(); });
    EXPECT_EQ(stored(), (Rows{{"30001", "30002"}}));
    EXPECT_TRUE(AwaitClosed("CursValutarDetaliu"));
    EXPECT_TRUE(AwaitFocus("Grid"));
    EXPECT_FALSE(ShownMessage::Find());
}

TEST_P(TypeAheadTest, ACurrencyIsAddedAfterARefusal) {
    OpenPalette(DayToEnter);
    TypeAhead([] {
        OpenList();
        PressListButton(2);
        Press(VK_RETURN, 2);  // without a name
        PressFirstButton();
        TypeText("XAU");
        Press(VK_RETURN, 2);
        PressListButton(2);
        TypeText("XAU");
        Press(VK_RETURN, 2);  // it exists by now
        PressFirstButton();
        PressKey(VK_ESCAPE);
    });
    Require("the currency",
            [&] { return !host->Rows("SELECT Curs FROM LpVal WHERE Valuta = 'XAU'").empty(); });
    EXPECT_TRUE(AwaitClosed("CereMoneda"));
    const Window list = AwaitForm("CursValutar");
    EXPECT_TRUE(WaitUntil([&] { return list.IsEnabled() && list.HasFocus(); }));
    EXPECT_EQ(ReadTable(host->Ui(), list.Control("Grid"))[0].back(), "XAU");
    EXPECT_THAT(host->Rows("SELECT Curs FROM LpVal WHERE Valuta = 'XAU'"), SizeIs(1));
    EXPECT_FALSE(ShownMessage::Find());
}

TEST_P(TypeAheadTest, AMonthIsDrawn) {
    OpenPalette(DayToEnter);
    TypeAhead([] {
        OpenList();
        PressListButton(3);
        PressKey(VK_DOWN);
        PressKey(VK_RETURN);
        PressKey(VK_DOWN);
        Press(VK_RETURN, 3);
        PressKey(VK_DOWN);
    });
    const Window window = AwaitForm("EvolutieCurs");
    EXPECT_TRUE(AwaitClosed("CursValutar"));
    ASSERT_TRUE(AwaitFocus("Grid"));
    host->Ui().Settle();
    const auto stored = host->Rows(
        "SELECT DAY(Data) as Data, [EUR] FROM [Curs Valutar] WHERE YEAR(Data) = 2002 And Month(Data) = 2 "
        "ORDER BY Data");
    ASSERT_GT(stored.size(), 2U);
    const TableTexts shown = ReadTable(host->Ui(), window.Control("Grid"));
    EXPECT_EQ(TableTexts(shown.begin() + 1, shown.end()), stored);
    EXPECT_EQ(ReadAccessible(host->Ui(), window.Control("Grid")).value, stored[1][0]);
}

TEST_P(TypeAheadTest, ASumGoesOnAfterADivisionByZero) {
    OpenPalette();
    TypeAhead([] {
        OpenCalculator();
        TypeText("120");
        PressKey(VK_ADD);
        TypeText("30");
        PressKey(VK_RETURN);
        PressKey(VK_DIVIDE);
        TypeText("0");
        PressKey(VK_RETURN);
        PressFirstButton();
        PressKey(VK_MULTIPLY);
        TypeText("6");
        PressKey(VK_RETURN);
    });
    const Window calculator = AwaitForm("frmCalculator");
    const auto shown = [&] { return ReadAccessible(host->Ui(), calculator.Control("ValLei")).value; };
    EXPECT_TRUE(WaitUntil([&] { return shown().starts_with("900"); })) << shown();
    EXPECT_FALSE(ShownMessage::Find());
}

TEST_P(TypeAheadTest, ARateIsChosenAndTheChooserOpenedAgain) {
    host->Run("UPDATE [Curs Valutar] SET [$] = 4");
    OpenPalette();
    PressKey(VK_RETURN);
    const Window calculator = AwaitForm("frmCalculator");
    host->Ui().Settle();
    host->Call([&] { SetFocus(calculator.Control("cmdVal").Handle()); });
    TypeAhead([] {
        PressKey(VK_RETURN);
        PressKey(VK_DOWN);
        PressKey(VK_RETURN);
        PressKey(VK_RETURN);
        PressKey(VK_ESCAPE);
    });
    const auto rate = [&] { return ReadAccessible(host->Ui(), calculator.Control("lblCurs")).name; };
    EXPECT_TRUE(WaitUntil([&] { return rate().starts_with("Cursul este de  4"); })) << rate();
    EXPECT_TRUE(AwaitClosed("AlegeMoneda"));
    EXPECT_TRUE(WaitUntil([&] { return calculator.IsEnabled() && calculator.HasFocus(); }));
    TypeAhead([] { PressKey(VK_ESCAPE); });
    EXPECT_TRUE(AwaitClosed("frmCalculator"));
}

TEST_P(TypeAheadTest, ANewNoteIsBegunInTheMiddleOfWriting) {
    OpenPalette();
    TypeAhead([] {
        OpenNotes();
        TypeText("Lista veche");
        PressKey('N', {VK_CONTROL});
        PressFirstButton();
        TypeText("Lapte Paine");
        PressKey(VK_RETURN);
        PressKey('B', {VK_CONTROL});
        TypeText("Cafea");
    });
    const Window note = AwaitForm("Notes").Control("txtNota");
    const auto text = [&] { return host->Call([&] { return win32::ReadRichText(note.Handle()); }); };
    EXPECT_TRUE(WaitUntil([&] { return text().ends_with(L"Cafea"); }));
    EXPECT_EQ(text(), L"Lapte Paine\r\nCafea");
    EXPECT_FALSE(ShownMessage::Find());
}

/// The palette stays behind each window that it opens, and keys go to the new one at once.
TEST_P(TypeAheadTest, ThePalettesKeysEndWhereTheOpenedWindowsBegin) {
    const Window palette = OpenPalette(DayToEnter);
    TypeAhead([] {
        Press(VK_DOWN, 4);  // once round
        OpenList();
        Press(VK_DOWN, 2);
    });
    const Window list = AwaitForm("CursValutar");
    ASSERT_TRUE(AwaitFocus("Grid"));
    host->Ui().Settle();
    EXPECT_EQ(ReadAccessible(host->Ui(), list.Control("Grid")).value, DaysOfJune()[2]);
    EXPECT_TRUE(palette.IsVisible());
    EXPECT_THAT(OpenForms(), SizeIs(2));
}

INSTANTIATE_TEST_SUITE_P(, TypeAheadTest,
                         testing::Values(LoopKind::Plain, LoopKind::Dialog, LoopKind::Filtering));

}  // namespace
}  // namespace tavrin::e2e
