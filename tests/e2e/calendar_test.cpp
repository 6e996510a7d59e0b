// The calendar of a date field stands on the field's day, and what the user chooses in it is the field's day
// then: by keyboard and mouse, by days, months and years, at both ends of what can be chosen.

#include "e2e/driver/calendar.h"

#include <commctrl.h>

#include "e2e/driver/accessible_reader.h"
#include "e2e/host_test.h"
#include "e2e/peers_test.h"

namespace tavrin::e2e {
namespace {

using data::CalendarDay;

class CalendarTest : public PeersTest {
  protected:
    Calendar OpenOn(CalendarDay day) {
        Call([&] {
            form->date.SetDate(data::ToOleDate(day));
            form->date.SetFocus();
        });
        Press(VK_F4);
        return Calendar(ui);
    }

    void UseEveryDay() {
        Call([&] { form->date.SetRange({-1e300}, {1e300}); });
    }

    CalendarDay Date() {
        return Call([&] { return data::ToCalendarDay(form->date.Date()); });
    }

    /// Where a key leads, and that Enter then takes the day that is seen.
    void ExpectKey(CalendarDay from, WORD keyCode, CalendarDay to) {
        const Calendar calendar = OpenOn(from);
        EXPECT_EQ(calendar.Selected(), from) << keyCode;
        Press(keyCode);
        EXPECT_EQ(calendar.Selected(), to) << keyCode;
        Press(VK_RETURN);
        EXPECT_FALSE(Calendar::IsOpen());
        EXPECT_EQ(Date(), to) << keyCode;
    }

    void ClickPlace(POINT place) {
        ClickAt(place);
        ui.Settle();
    }
};
INSTANTIATE_TEST_SUITE_P(, CalendarTest, testing::Values(LoopKind::Plain, LoopKind::Dialog));

TEST_P(CalendarTest, OpensOnTheDayOfEveryField) {
    UseEveryDay();
    for (const CalendarDay day : {CalendarDay{1753, 1, 1},
                                  {1899, 12, 30},
                                  {2000, 2, 29},
                                  {2003, 5, 20},
                                  {2079, 6, 6},
                                  {9999, 12, 31}}) {
        const Calendar calendar = OpenOn(day);
        EXPECT_EQ(calendar.Selected(), day);
        Press(VK_RETURN);
        EXPECT_FALSE(Calendar::IsOpen());
        EXPECT_EQ(Date(), day) << "Enter takes the day that is shown";
    }
}

TEST_P(CalendarTest, IsWrittenInTheFieldsFont) {
    OpenOn({2003, 5, 20});
    const HWND month = FindWindowExW(FindForm("Calendar")->Handle(), nullptr, MONTHCAL_CLASSW, nullptr);
    const auto font = reinterpret_cast<HFONT>(SendMessageW(month, WM_GETFONT, 0, 0));
    LOGFONTW look{};
    ASSERT_NE(GetObjectW(font, sizeof look, &look), 0) << "the system's font";
    EXPECT_STREQ(look.lfFaceName, L"Arial");
    Press(VK_ESCAPE);
}

TEST_P(CalendarTest, KeysWalkFromTheFieldsDay) {
    ExpectKey({2003, 5, 20}, VK_LEFT, {2003, 5, 19});
    ExpectKey({2003, 5, 20}, VK_RIGHT, {2003, 5, 21});
    ExpectKey({2003, 5, 20}, VK_UP, {2003, 5, 13});
    ExpectKey({2003, 5, 20}, VK_DOWN, {2003, 5, 27});
    ExpectKey({2003, 3, 31}, VK_PRIOR, {2003, 2, 28});
    ExpectKey({2003, 12, 31}, VK_NEXT, {2004, 1, 31});
    ExpectKey({2003, 5, 20}, VK_HOME, {2003, 5, 1});
    ExpectKey({2003, 5, 20}, VK_END, {2003, 5, 31});
}

TEST_P(CalendarTest, KeysStopAtTheEndsOfTheRange) {
    ExpectKey({2003, 1, 3}, VK_PRIOR, {2003, 1, 1});
    ExpectKey({2003, 1, 1}, VK_LEFT, {2003, 1, 1});
    ExpectKey({2004, 1, 30}, VK_NEXT, {2004, 1, 31});
    ExpectKey({2004, 1, 31}, VK_DOWN, {2004, 1, 31});
    UseEveryDay();
    ExpectKey({1753, 1, 1}, VK_LEFT, {1753, 1, 1});
    ExpectKey({1753, 1, 20}, VK_PRIOR, {1753, 1, 1});
    ExpectKey({9999, 12, 31}, VK_RIGHT, {9999, 12, 31});
    ExpectKey({9999, 12, 20}, VK_NEXT, {9999, 12, 31});
}

TEST_P(CalendarTest, AClickTakesTheDayThatIsClicked) {
    for (const int day : {1, 7, 19, 31}) {
        const Calendar calendar = OpenOn({2003, 5, 20});
        ClickPlace(calendar.PlaceOf(CalendarDay{2003, 5, day}));
        EXPECT_FALSE(Calendar::IsOpen()) << day;
        EXPECT_EQ(Date(), (CalendarDay{2003, 5, day}));
    }
}

TEST_P(CalendarTest, TheArrowsOfTheTitleLeadToOtherMonths) {
    for (const auto& [part, month] : {std::pair<UINT, int>{MCHT_TITLEBTNPREV, 4}, {MCHT_TITLEBTNNEXT, 6}}) {
        const Calendar calendar = OpenOn({2003, 5, 20});
        ClickPlace(calendar.PlaceOf(part));
        ASSERT_TRUE(Calendar::IsOpen());
        ClickPlace(calendar.PlaceOf(CalendarDay{2003, month, 11}));
        EXPECT_FALSE(Calendar::IsOpen());
        EXPECT_EQ(Date(), (CalendarDay{2003, month, 11}));
    }
}

TEST_P(CalendarTest, AfterAnArrowOfTheTitleEnterTakesTheDayThatIsMarked) {
    const Calendar calendar = OpenOn({2003, 5, 20});
    ClickPlace(calendar.PlaceOf(MCHT_TITLEBTNNEXT));
    const CalendarDay marked = calendar.Selected();
    EXPECT_EQ(marked.year, 2003);
    EXPECT_EQ(marked.day, 20);
    Press(VK_RETURN);
    EXPECT_FALSE(Calendar::IsOpen());
    EXPECT_EQ(Date(), marked);
}

TEST_P(CalendarTest, TheYearOfTheTitleLeadsToOtherYears) {
    UseEveryDay();
    const Calendar calendar = OpenOn({2003, 5, 20});
    ClickPlace(calendar.PlaceOf(MCHT_TITLEYEAR));
    EXPECT_EQ(calendar.Selected(), (CalendarDay{2003, 5, 20}));
    const RECT arrows = calendar.YearArrows().ScreenBounds();
    ClickPlace({(arrows.left + arrows.right) / 2, arrows.top + (arrows.bottom - arrows.top) / 4});
    Press(VK_RETURN);
    EXPECT_EQ(calendar.Selected(), (CalendarDay{2004, 5, 20}));
    Press(VK_RETURN);
    EXPECT_FALSE(Calendar::IsOpen());
    EXPECT_EQ(Date(), (CalendarDay{2004, 5, 20}));
}

TEST_P(CalendarTest, TheMonthOfTheTitleLeadsToOtherMonths) {
    const Calendar calendar = OpenOn({2003, 5, 20});
    ClickPlace(calendar.PlaceOf(MCHT_TITLEMONTH));
    Press(VK_DOWN);
    Press(VK_RETURN);
    const CalendarDay marked = calendar.Selected();
    EXPECT_EQ(marked, (CalendarDay{2003, 1, 20})) << "the first of the menu";
    Press(VK_RETURN);
    EXPECT_FALSE(Calendar::IsOpen());
    EXPECT_EQ(Date(), marked);
}

TEST_P(CalendarTest, NothingInItGoesToToday) {
    const Calendar calendar = OpenOn({2003, 5, 20});
    if (const auto today = calendar.FindPart(MCHT_TODAYLINK)) {
        ClickPlace(*today);
        ASSERT_TRUE(Calendar::IsOpen());
        EXPECT_EQ(calendar.Selected(), (CalendarDay{2003, 5, 20})) << "a link that is not shown";
    }
    ClickAt(calendar.PlaceOf(CalendarDay{2003, 5, 6}), Button::Right);
    ui.Settle();
    Press(VK_DOWN);
    Press(VK_RETURN);
    if (Calendar::IsOpen()) Press(VK_RETURN);
    EXPECT_FALSE(Calendar::IsOpen());
    EXPECT_EQ(Date(), (CalendarDay{2003, 5, 27})) << "the arrow was for the days, not for a menu";
}

TEST_P(CalendarTest, ClosesWhenItsFieldTakesAnotherDay) {
    OpenOn({2003, 5, 20});
    Call([&] { form->date.SetDate(data::ToOleDate({2003, 6, 1})); });
    EXPECT_TRUE(AwaitClosed("Calendar"));
    EXPECT_EQ(Date(), (CalendarDay{2003, 6, 1}));
    OpenOn({2003, 5, 20});
    Call([&] { form->date.SetRange(data::ToOleDate({2003, 5, 1}), data::ToOleDate({2003, 5, 31})); });
    EXPECT_TRUE(AwaitClosed("Calendar"));
    OpenOn({2003, 5, 20});
    Call([&] { form->date.SetEnabled(false); });
    EXPECT_TRUE(AwaitClosed("Calendar"));
}

// In the windows.

class WindowCalendarTest : public HostTest {
  protected:
    WindowCalendarTest() : HostTest(LoopKind::Plain) {}

    std::string Shown(const Window& window, const char* picker) {
        return ReadAccessible(host->Ui(), window.Control(picker)).value;
    }

    Window OpenEntry() {
        list = OpenRateList({2003, 6, 14, 2});
        Click(list.Control("cmdAction(0)"));
        const Window entry = AwaitForm("CursValutarDetaliu");
        Require("the day has the keyboard", [] { return FocusedName() == "DataCurs"; });
        return entry;
    }

    Calendar OpenByKey() {
        PressKey(VK_F4);
        return Calendar(host->Ui());
    }

    /// By a press on the arrow at a field's right end.
    Calendar OpenByMouse(const Window& picker) {
        const RECT field = picker.ScreenBounds();
        const int inTheArrow = picker.Height() / 2;
        ClickAt({field.right - inTheArrow, picker.Center().y});
        return Calendar(host->Ui());
    }

    Window list;
};

TEST_F(WindowCalendarTest, ANewDaysRatesAreSavedUnderTheDayThatWasClicked) {
    const Window entry = OpenEntry();
    const Calendar calendar = OpenByMouse(entry.Control("DataCurs"));
    EXPECT_EQ(calendar.Selected(), (CalendarDay{2003, 6, 14}));
    ClickAt(calendar.PlaceOf(CalendarDay{2003, 6, 15}));
    ASSERT_TRUE(AwaitClosed("Calendar"));
    EXPECT_EQ(Shown(entry, "DataCurs"), "15/06/2003");
    Click(entry.Control("cmdAction(0)"));
    ASSERT_TRUE(AwaitClosed("CursValutarDetaliu"));
    EXPECT_EQ(host->Rows("SELECT 'x' FROM [Curs Valutar] WHERE [Data] = '2003-06-15'").size(), 1U);
}

TEST_F(WindowCalendarTest, EnterAndAnArrowWithEnterStartFromTheWorkingDate) {
    const Window entry = OpenEntry();
    EXPECT_EQ(OpenByKey().Selected(), (CalendarDay{2003, 6, 14}));
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitClosed("Calendar"));
    ASSERT_TRUE(AwaitFocus("DataCurs"));
    EXPECT_EQ(Shown(entry, "DataCurs"), "14/06/2003");
    OpenByKey();
    PressKey(VK_RIGHT);
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitClosed("Calendar"));
    EXPECT_EQ(Shown(entry, "DataCurs"), "15/06/2003");
}

TEST_F(WindowCalendarTest, TheListsPickersOpenOnTheirDays) {
    list = OpenRateList({2003, 6, 16, 2});
    for (const auto& [picker, day] : {std::pair{"dpDataIn", 1}, {"dpDataFin", 16}}) {
        EXPECT_EQ(OpenByMouse(list.Control(picker)).Selected(), (CalendarDay{2003, 6, day})) << picker;
        PressKey(VK_ESCAPE);
        ASSERT_TRUE(AwaitClosed("Calendar"));
    }
}

}  // namespace
}  // namespace tavrin::e2e
