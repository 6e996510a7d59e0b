// The rate list on the demo data: opened, read, filtered, changed and left by real input.

#include <windows.h>

#include <oleacc.h>

#include <algorithm>

#include "e2e/driver/accessible_reader.h"
#include "e2e/driver/shown_message.h"
#include "e2e/host_test.h"

namespace tavrin::e2e {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr HostValues June{2003, 6, 16, 2};
constexpr HostValues PartlyFrozen{2003, 4, 4, 1};

constexpr const char* Question = "Sunteti sigur ca doriti sa stergeti cursul valutar pentru data de ";
constexpr const char* Refusal = "Acest curs a fost validat !\r\nNu puteti modifica un curs deja validat !";

class RateListTest : public HostTest {
  protected:
    explicit RateListTest(LoopKind loop = LoopKind::Plain) : HostTest(loop) {}

    void Open(const HostValues& values = June) { list = OpenRateList(values); }

    Window Action(int index) const { return list.Control("cmdAction(" + std::to_string(index) + ")"); }
    Window Grid() const { return list.Control("Grid"); }
    TableTexts Shown() { return ReadTable(host->Ui(), Grid()); }

    std::vector<std::string> Currencies() {
        auto columns = host->Call([&] { return host->Data().Columns("Curs Valutar"); });
        std::erase_if(columns, [](const std::string& name) { return name == "Data" || name == "Validat"; });
        return columns;
    }

    /// What the database has for a range of days, in the form that the grid is to show.
    TableTexts Stored(const std::string& from, const std::string& to) {
        TableTexts table = {{"Data"}};
        std::string query = "SELECT CONVERT(nvarchar,[Data],103)";
        for (const std::string& currency : Currencies()) {
            table[0].push_back(currency);
            query += ",[" + currency + "]";
        }
        query += " FROM [Curs Valutar] WHERE [Data] BETWEEN '" + from + "' AND '" + to + "' ORDER BY [Data]";
        std::ranges::copy(host->Rows(query), std::back_inserter(table));
        return table;
    }

    bool IsStored(const std::string& day) {
        return !host->Rows("SELECT 'x' FROM [Curs Valutar] WHERE [Data] = '" + day + "'").empty();
    }

    /// Clicks the first cell of a row; the header is row 0.
    void ClickRow(int row) {
        const auto parts = ReadParts(host->Ui(), Grid());
        const auto columns = Shown()[0].size();
        const RECT& cell = parts[static_cast<std::size_t>(row) * columns].place;
        ClickAt({(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2});
        ASSERT_TRUE(AwaitFocus("Grid"));
        host->Ui().Settle();
    }

    /// Clicks the day of a picker, so that typing begins there.
    void ClickDayOf(const char* picker) {
        constexpr int InsideTheDay = 10;
        const Window control = list.Control(picker);
        ClickAt({control.ScreenBounds().left + InsideTheDay, control.Center().y});
        ASSERT_TRUE(AwaitFocus(picker));
    }

    /// Types two days as ddmmyy and walks with Enter from the pickers to the button, which it presses.
    void Filter(const char* from, const char* to) {
        ClickDayOf("dpDataIn");
        TypeText(from);
        ClickDayOf("dpDataFin");
        TypeText(to);
        PressKey(VK_RETURN);
        ASSERT_TRUE(AwaitFocus("cmdRefresh"));
        PressKey(VK_RETURN);
        host->Ui().Settle();
    }

    Window list;
};

// Opening.

TEST_F(RateListTest, OpensByAClickAndFocusesTheGrid) {
    Open();
    EXPECT_EQ(list.Text(), "Curs Valutar");
    EXPECT_TRUE(list.IsTopmost());
    EXPECT_EQ(GetWindow(list.Handle(), GW_OWNER), nullptr);
    EXPECT_TRUE(AwaitFocus("Grid"));
}

TEST_F(RateListTest, OpensByKeyboard) {
    OpenPalette();
    PressKey(VK_DOWN);
    ASSERT_TRUE(AwaitFocus("cmdAction(3)"));
    PressKey(VK_RETURN);
    AwaitForm("CursValutar");
    EXPECT_TRUE(AwaitFocus("Grid"));
}

TEST_F(RateListTest, ASecondClickBringsTheSameWindow) {
    Open();
    Click(AwaitForm("Utilitati").Control("cmdAction(3)"));
    ASSERT_TRUE(WaitUntil([&] { return list.HasFocus(); }));
    host->Ui().Settle();
    EXPECT_EQ(AwaitForm("CursValutar"), list);
    EXPECT_EQ(OpenForms().size(), 2U);
}

TEST_F(RateListTest, HasNoButtonForTheAbsentIndex) {
    Open();
    for (const int index : {0, 1, 2, 3, 5, 6})
        EXPECT_TRUE(Action(index).IsVisible()) << index;
    EXPECT_FALSE(list.FindControl("cmdAction(4)"));
}

// Content.

TEST_F(RateListTest, ShowsTheMonthUpToTheWorkingDate) {
    Open();
    const TableTexts stored = Stored("2003-06-01", "2003-06-16");
    ASSERT_GT(stored.size(), 5U) << "the demo data has rates in that month";
    EXPECT_EQ(Shown(), stored);
}

TEST_F(RateListTest, ShowsFractionsWithAPointAndNothingForNull) {
    const std::string currency = Currencies()[0];
    host->Run("UPDATE [Curs Valutar] SET [" + currency + "] = 1234.5 WHERE [Data] = '2003-06-02'");
    host->Run("UPDATE [Curs Valutar] SET [" + currency + "] = NULL WHERE [Data] = '2003-06-03'");
    Open();
    const TableTexts shown = Shown();
    ASSERT_EQ(shown[1][0], "02/06/2003");
    EXPECT_EQ(shown[1][1], "1234.5");
    ASSERT_EQ(shown[2][0], "03/06/2003");
    EXPECT_EQ(shown[2][1], "");
}

TEST_F(RateListTest, ACurrencyWithABracketInItsNameBreaksTheQueryAlone) {
    host->Run("ALTER TABLE [Curs Valutar] ADD [A]]B] float");
    OpenPalette();
    Click(AwaitForm("Utilitati").Control("cmdAction(3)"));
    const ShownMessage report = ShownMessage::Await();
    EXPECT_EQ(report.Title(), "Eroare");
    EXPECT_THAT(report.Prompt(), testing::HasSubstr("80040E14"));
    report.Press(IDOK);
    host->Ui().Settle();
    EXPECT_TRUE(FindForm("Utilitati"));
}

TEST_F(RateListTest, TellsAssistiveToolsWhatItIs) {
    Open();
    const AccessibleFacts grid = ReadAccessible(host->Ui(), Grid());
    EXPECT_EQ(grid.name, "Curs Valutar");
    EXPECT_EQ(grid.role, ROLE_SYSTEM_TABLE);
    EXPECT_TRUE((grid.state & STATE_SYSTEM_FOCUSED) != 0);
    const auto parts = ReadParts(host->Ui(), Grid());
    ASSERT_FALSE(parts.empty());
    EXPECT_EQ(parts[0].role, ROLE_SYSTEM_COLUMNHEADER);
    EXPECT_EQ(parts[0].name, "Data");
    const TableTexts shown = Shown();
    const AccessibleFacts& cell = parts[shown[0].size() + 1];
    EXPECT_EQ(cell.role, ROLE_SYSTEM_CELL);
    EXPECT_EQ(cell.name, shown[0][1] + ", " + shown[1][0]);
    EXPECT_EQ(cell.description, "rândul 1 din " + std::to_string(shown.size() - 1));
    EXPECT_EQ(cell.defaultAction, "Selectează");
    EXPECT_EQ(ReadAccessible(host->Ui(), list.Control("dpDataIn")).name, "De La Data");
    EXPECT_EQ(ReadAccessible(host->Ui(), list.Control("dpDataFin")).name, "La Data");
    EXPECT_EQ(ReadAccessible(host->Ui(), Action(1)).name, "Modifica Curs");
}

// The range.

TEST_F(RateListTest, FiltersByTypedDates) {
    Open();
    Filter("050503", "200503");
    EXPECT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(Shown(), Stored("2003-05-05", "2003-05-20"));
}

TEST_F(RateListTest, EnterWalksFromTheFirstPickerToTheButton) {
    Open();
    ClickDayOf("dpDataIn");
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("dpDataFin"));
    PressKey(VK_LEFT);
    ASSERT_TRUE(AwaitFocus("dpDataIn"));
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("dpDataFin"));
    PressKey(VK_RETURN);
    EXPECT_TRUE(AwaitFocus("cmdRefresh"));
}

TEST_F(RateListTest, AClickOnTheButtonFilters) {
    Open();
    ClickDayOf("dpDataIn");
    TypeText("10");
    Click(list.Control("cmdRefresh"));
    ASSERT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(Shown(), Stored("2003-06-10", "2003-06-16"));
}

TEST_F(RateListTest, AnEmptyRangeHidesTheGridAndFocusesTheSecondPicker) {
    host->Run("DELETE FROM [Curs Valutar] WHERE [Data] BETWEEN '2003-05-01' AND '2003-05-31'");
    Open();
    Filter("010503", "310503");
    EXPECT_TRUE(AwaitFocus("dpDataFin"));
    EXPECT_FALSE(list.Control("fraGrid").IsVisible());
    EXPECT_FALSE(Grid().IsVisible());
    Filter("010603", "160603");
    EXPECT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(Shown(), Stored("2003-06-01", "2003-06-16"));
}

TEST_F(RateListTest, ARangeThatEndsBeforeItBeginsIsEmpty) {
    Open();
    Filter("160603", "020603");
    EXPECT_TRUE(AwaitFocus("dpDataFin"));
    EXPECT_FALSE(list.Control("fraGrid").IsVisible());
}

TEST_F(RateListTest, WithoutRowsNothingCanBeModifiedOrDeleted) {
    Open();
    Filter("160603", "020603");
    ASSERT_FALSE(Grid().IsVisible());
    Click(Action(1));
    Click(Action(2));
    host->Ui().Settle();
    EXPECT_FALSE(ShownMessage::Find());
    EXPECT_EQ(OpenForms().size(), 2U);
}

// Deleting.

TEST_F(RateListTest, DeletesTheSelectedDayAfterYes) {
    Open();
    const TableTexts before = Shown();
    ClickRow(2);
    Click(Action(2));
    ExpectMessage(Question + before[2][0], MessageIcon::Question, "Curs Valutar", {IDYES, IDNO}, IDYES);
    host->Ui().Settle();
    TableTexts expected = before;
    expected.erase(expected.begin() + 2);
    EXPECT_EQ(Shown(), expected);
    EXPECT_EQ(Stored("2003-06-01", "2003-06-16"), expected);
}

TEST_F(RateListTest, KeepsTheSelectedDayAfterNo) {
    Open();
    const TableTexts before = Shown();
    ClickRow(2);
    Click(Action(2));
    ExpectMessage(Question + before[2][0], MessageIcon::Question, "Curs Valutar", {IDYES, IDNO}, IDNO);
    EXPECT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(Shown(), before);
    EXPECT_EQ(Stored("2003-06-01", "2003-06-16"), before);
}

TEST_F(RateListTest, DeletesTheDayChosenByKeyboard) {
    Open();
    const TableTexts before = Shown();
    ASSERT_TRUE(AwaitFocus("Grid"));
    PressKey(VK_DOWN);
    PressKey(VK_DOWN);
    PressKey(VK_TAB);
    ASSERT_TRUE(AwaitFocus("cmdAction(1)"));
    PressKey(VK_DOWN);
    ASSERT_TRUE(AwaitFocus("cmdAction(2)"));
    PressKey(VK_RETURN);
    ExpectMessage(Question + before[3][0], MessageIcon::Question, "Curs Valutar", {IDYES, IDNO}, IDYES);
    host->Ui().Settle();
    EXPECT_EQ(Shown().size(), before.size() - 1);
    EXPECT_NE(Shown()[3][0], before[3][0]);
}

TEST_F(RateListTest, DeletingTheOnlyDayHidesTheGrid) {
    Open();
    Filter("020603", "020603");
    ASSERT_EQ(Shown().size(), 2U);
    Click(Action(2));
    ExpectMessage(std::string(Question) + "02/06/2003", MessageIcon::Question, "Curs Valutar", {IDYES, IDNO},
                  IDYES);
    host->Ui().Settle();
    EXPECT_FALSE(Grid().IsVisible());
    EXPECT_FALSE(IsStored("2003-06-02"));
}

// Frozen days.

TEST_F(RateListTest, AFrozenDayCannotBeDeleted) {
    Open(FrozenMarch);
    const TableTexts before = Shown();
    ClickRow(1);
    Click(Action(2));
    ExpectMessage(Refusal, MessageIcon::Error, "Curs Valutar", {IDOK}, IDOK);
    EXPECT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(Shown(), before);
}

TEST_F(RateListTest, AFrozenDayCannotBeModifiedAndItsRowIsSelected) {
    Open(FrozenMarch);
    ClickRow(2);
    Click(Action(1));
    ExpectMessage(Refusal, MessageIcon::Error, "Curs Valutar", {IDOK}, IDOK);
    ASSERT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(OpenForms().size(), 2U);
    host->Ui().Settle();
    const auto parts = ReadParts(host->Ui(), Grid());
    const std::size_t columns = Shown()[0].size();
    for (std::size_t i = 0; i < 4 * columns; ++i) {
        EXPECT_EQ((parts[i].state & STATE_SYSTEM_SELECTED) != 0, i / columns == 2) << i;
    }
}

TEST_F(RateListTest, TheDayAfterTheFrozenOneIsFree) {
    // 31 March 2003, a Monday, is the last frozen day.
    Open(PartlyFrozen);
    Filter("310303", "010403");
    ASSERT_EQ(Shown()[1][0], "31/03/2003");
    ASSERT_EQ(Shown()[2][0], "01/04/2003");
    ClickRow(1);
    Click(Action(2));
    ExpectMessage(Refusal, MessageIcon::Error, "Curs Valutar", {IDOK}, IDOK);
    ASSERT_TRUE(AwaitFocus("Grid"));
    ClickRow(2);
    Click(Action(2));
    ExpectMessage(std::string(Question) + "01/04/2003", MessageIcon::Question, "Curs Valutar", {IDYES, IDNO},
                  IDNO);
}

// Leaving.

TEST_F(RateListTest, TheButtonClosesIt) {
    Open();
    Click(Action(6));
    EXPECT_TRUE(AwaitClosed("CursValutar"));
    host->Ui().Settle();
    EXPECT_EQ(host->Iesire(), 1);
}

TEST_F(RateListTest, EscapeClosesItFromEverywhere) {
    for (const char* place : {"Grid", "dpDataIn", "dpDataFin", "cmdRefresh", "cmdAction(1)"}) {
        Open();
        if (std::string_view(place) != "Grid") ClickDayOf("dpDataIn");
        if (std::string_view(place) == "dpDataFin") ClickDayOf("dpDataFin");
        if (std::string_view(place) == "cmdRefresh") Click(list.Control("cmdRefresh"));
        if (std::string_view(place) == "cmdAction(1)") {
            ClickRow(1);
            PressKey(VK_TAB);
            ASSERT_TRUE(AwaitFocus(place));
        }
        PressKey(VK_ESCAPE);
        EXPECT_TRUE(AwaitClosed("CursValutar")) << place;
        CloseEverything();
    }
}

TEST_F(RateListTest, TheTitleBarClosesIt) {
    Open();
    PressKey(VK_F4, {VK_MENU});
    EXPECT_TRUE(AwaitClosed("CursValutar"));
    host->Ui().Settle();
    EXPECT_EQ(host->Iesire(), 1);
}

TEST_F(RateListTest, StaysOnTopWithoutTakingTheFocusBack) {
    Open();
    ActivateHostWindow();
    host->Ui().Settle();
    EXPECT_TRUE(list.IsTopmost());
    EXPECT_FALSE(list.HasFocus());
    EXPECT_EQ(GetForegroundWindow(), host->MainWindow().Handle());
}

// The same keys in a loop that knows dialogs.

class RateListInDialogLoopTest : public RateListTest {
  protected:
    RateListInDialogLoopTest() : RateListTest(LoopKind::Dialog) {}
};

TEST_F(RateListInDialogLoopTest, TabEnterAndArrowsWork) {
    Open();
    ASSERT_TRUE(AwaitFocus("Grid"));
    PressKey(VK_DOWN);
    host->Ui().Settle();
    EXPECT_EQ(ReadAccessible(host->Ui(), Grid()).value, Shown()[2][0]);
    PressKey(VK_TAB);
    ASSERT_TRUE(AwaitFocus("cmdAction(1)"));
    PressKey(VK_RIGHT);
    ASSERT_TRUE(AwaitFocus("dpDataIn"));
    TypeText("100603");
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("dpDataFin"));
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("cmdRefresh"));
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(Shown(), Stored("2003-06-10", "2003-06-16"));
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(AwaitClosed("CursValutar"));
}

TEST_F(RateListInDialogLoopTest, EnterAnswersTheQuestion) {
    Open();
    ClickRow(2);
    Click(Action(2));
    ShownMessage::Await();
    PressKey(VK_RIGHT);
    PressKey(VK_RETURN);
    EXPECT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(Shown(), Stored("2003-06-01", "2003-06-16"));
}

}  // namespace
}  // namespace tavrin::e2e
