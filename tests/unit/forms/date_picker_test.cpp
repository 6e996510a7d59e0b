#include "forms/controls/date_picker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "forms/controls/text_box.h"
#include "forms/model/form.h"
#include "support/counting_peer.h"
#include "support/headless_desktop.h"
#include "support/headless_keyboard.h"
#include "support/recording_surface.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using data::DatePart;
using data::ToOleDate;
using testing::IsEmpty;

class PickerForm : public forms::Form {
  public:
    explicit PickerForm(forms::Desktop& desktop)
        : Form(desktop, "Pickers", "Pickers", forms::BorderStyle::FixedDialog) {}

    forms::DatePicker picker{*this, "picker", "dd/MM/yyyy", {0, 0, 1800, 330}};
    forms::DatePicker named{*this, "named", "dd/MMM/yy", {0, 500, 1800, 330}};
    forms::DatePicker plain{*this, "plain", "--", {0, 1500, 900, 330}};
    forms::TextBox other{*this, "other", {0, 1000, 1800, 330}};
};

class DatePickerTest : public testing::Test {
  protected:
    DatePickerTest() {
        picker.SetDate(ToOleDate({2003, 5, 20}));
        picker.onChange = [this] { ++changes; };
        form->Show();
    }
    ~DatePickerTest() override { desktop.UnloadAll(); }

    HeadlessDesktop desktop;
    HeadlessKeyboard keyboard{desktop};
    std::shared_ptr<PickerForm> form = std::make_shared<PickerForm>(desktop);
    forms::DatePicker& picker = form->picker;
    forms::DatePicker& named = form->named;
    int changes = 0;
};

// The value.

TEST_F(DatePickerTest, ShowsTheValueInItsFormat) {
    EXPECT_EQ(picker.Text(), "20/05/2003");
    named.SetDate(ToOleDate({2003, 5, 20}));
    EXPECT_EQ(named.Text(), "20/mai/03");
}

TEST_F(DatePickerTest, ANewValueRaisesChangeWhoeverSetsIt) {
    picker.SetDate(ToOleDate({2003, 5, 21}));
    EXPECT_EQ(changes, 1);
    picker.SetDate(ToOleDate({2003, 5, 21}));
    EXPECT_EQ(changes, 1);
    picker.HandleChosen(ToOleDate({2003, 5, 22}));
    EXPECT_EQ(changes, 2);
}

TEST_F(DatePickerTest, DropsTheTimeOfDay) {
    picker.SetDate({ToOleDate({2003, 5, 21}).days + 0.75});
    EXPECT_EQ(picker.Date(), ToOleDate({2003, 5, 21}));
    EXPECT_EQ(changes, 1);
}

TEST_F(DatePickerTest, ValuesAreMovedIntoTheRange) {
    picker.SetRange(ToOleDate({2003, 1, 1}), ToOleDate({2004, 1, 31}));
    EXPECT_EQ(changes, 0);
    picker.SetDate(ToOleDate({2002, 12, 31}));
    EXPECT_EQ(picker.Text(), "01/01/2003");
    picker.SetDate(ToOleDate({2004, 2, 1}));
    EXPECT_EQ(picker.Text(), "31/01/2004");
    picker.SetRange(ToOleDate({2003, 1, 1}), ToOleDate({2003, 12, 31}));
    EXPECT_EQ(picker.Text(), "31/12/2003");
}

TEST_F(DatePickerTest, ARangeThatEndsBeforeItsStartIsOneDay) {
    picker.SetRange(ToOleDate({2003, 6, 1}), ToOleDate({2003, 5, 1}));
    EXPECT_EQ(picker.Text(), "01/06/2003");
    EXPECT_EQ(picker.MinDate(), picker.MaxDate());
}

TEST_F(DatePickerTest, AbsurdDatesAreNoTrouble) {
    picker.SetDate({std::numeric_limits<double>::quiet_NaN()});
    picker.SetDate({std::numeric_limits<double>::infinity()});
    EXPECT_EQ(picker.Text(), "20/05/2003");
    picker.SetDate({1e300});
    EXPECT_EQ(picker.Text(), "31/12/9999");
    keyboard.Press(key::Right);
    keyboard.Press(key::Right);
    keyboard.Press(key::Up);
    EXPECT_EQ(picker.Text(), "31/12/9999");
    picker.SetDate({-1e300});
    EXPECT_EQ(picker.Text(), "01/01/1753");
    keyboard.Press(key::Down);
    EXPECT_EQ(picker.Text(), "01/01/1753");
    picker.SetRange({-1e300}, {1e300});
    picker.SetDate({});
    EXPECT_EQ(picker.Text(), "30/12/1899");
}

TEST_F(DatePickerTest, EveryRangeIsOneThatCalendarsTake) {
    const data::OleDate first = ToOleDate({1753, 1, 1});
    const data::OleDate last = ToOleDate({9999, 12, 31});
    const auto expectRange = [&](data::OleDate from, data::OleDate to) {
        EXPECT_EQ(picker.MinDate(), from);
        EXPECT_EQ(picker.MaxDate(), to);
        EXPECT_GE(picker.Date().days, from.days);
        EXPECT_LE(picker.Date().days, to.days);
    };
    expectRange(first, last);
    picker.SetRange({-1e300}, {1e300});
    expectRange(first, last);
    picker.SetRange(ToOleDate({100, 1, 1}), ToOleDate({1752, 12, 31}));
    expectRange(first, first);
    picker.SetRange(ToOleDate({32767, 1, 1}), ToOleDate({32768, 1, 31}));
    expectRange(last, last);
    picker.SetRange({first.days - 1}, {last.days + 1});
    expectRange(first, last);
    picker.SetRange({first.days + 1}, {last.days - 1});
    expectRange({first.days + 1}, {last.days - 1});
}

TEST_F(DatePickerTest, NeitherKeysNorDigitsLeaveTheDaysOfACalendar) {
    for (const auto& [day, text] : {std::pair{data::CalendarDay{1753, 1, 1}, "01/01/1753"},
                                    {data::CalendarDay{9999, 12, 31}, "31/12/9999"}}) {
        picker.SetDate(ToOleDate(day));
        const bool isFirst = day.year == 1753;
        keyboard.Press(key::Right);
        keyboard.Press(key::Right);
        keyboard.Press(isFirst ? key::Down : key::Up);
        EXPECT_EQ(picker.Text(), text);
        picker.HandleWheel(isFirst ? -3 : 3);
        EXPECT_EQ(picker.Text(), text);
    }
    keyboard.Type("1752");
    EXPECT_EQ(picker.Text(), "31/12/1753") << "the nearest year";
}

// Keys.

TEST_F(DatePickerTest, LeftAndRightChooseThePartAndStopAtTheEnds) {
    EXPECT_EQ(picker.ActivePart(), DatePart::Day);
    keyboard.Press(key::Left);
    EXPECT_EQ(picker.ActivePart(), DatePart::Day);
    keyboard.Press(key::Right);
    EXPECT_EQ(picker.ActivePart(), DatePart::Month);
    keyboard.Press(key::Right);
    keyboard.Press(key::Right);
    EXPECT_EQ(picker.ActivePart(), DatePart::Year);
    EXPECT_TRUE(picker.HasFocus());
}

TEST_F(DatePickerTest, UpAndDownWrapWithinTheirPart) {
    picker.SetDate(ToOleDate({2003, 12, 31}));
    keyboard.Press(key::Up);
    EXPECT_EQ(picker.Text(), "01/12/2003");
    keyboard.Press(key::Down);
    EXPECT_EQ(picker.Text(), "31/12/2003");
    keyboard.Press(key::Right);
    keyboard.Press(key::Up);
    EXPECT_EQ(picker.Text(), "31/01/2003");
    keyboard.Press(key::Up);
    EXPECT_EQ(picker.Text(), "28/02/2003");
    keyboard.Press(key::Right);
    keyboard.Press(key::Down);
    EXPECT_EQ(picker.Text(), "28/02/2002");
}

TEST_F(DatePickerTest, UpAndDownStayInTheRange) {
    picker.SetRange(ToOleDate({2003, 1, 10}), ToOleDate({2004, 1, 31}));
    picker.SetDate(ToOleDate({2003, 2, 5}));
    keyboard.Press(key::Right);
    keyboard.Press(key::Down);
    EXPECT_EQ(picker.Text(), "10/01/2003");
    keyboard.Press(key::Right);
    keyboard.Press(key::Down);
    EXPECT_EQ(picker.Text(), "10/01/2003");
}

TEST_F(DatePickerTest, TheWheelTurnsThePartOfTheFocusedField) {
    picker.HandleWheel(1);
    EXPECT_EQ(picker.Text(), "21/05/2003");
    form->other.SetFocus();
    picker.HandleWheel(1);
    EXPECT_EQ(picker.Text(), "21/05/2003");
}

TEST_F(DatePickerTest, TwoDigitsCompleteAPartAndMoveOn) {
    keyboard.Type("07042004");
    EXPECT_EQ(picker.Text(), "07/04/2004");
    EXPECT_EQ(picker.ActivePart(), DatePart::Year);
}

TEST_F(DatePickerTest, SeparatorsMoveOnFromAPartInTyping) {
    keyboard.Type("7/4/2004");
    EXPECT_EQ(picker.Text(), "07/04/2004");
    picker.SetDate(ToOleDate({2003, 5, 20}));
    keyboard.Press(key::Left);
    keyboard.Press(key::Left);
    keyboard.Type("07.04.2004");
    EXPECT_EQ(picker.Text(), "07/04/2004");
}

TEST_F(DatePickerTest, ASingleDigitCountsAtOnce) {
    keyboard.Type("7");
    EXPECT_EQ(picker.Text(), "07/05/2003");
    EXPECT_EQ(changes, 1);
    keyboard.Press(key::Right);
    EXPECT_EQ(picker.ActivePart(), DatePart::Month);
}

TEST_F(DatePickerTest, DigitsThatNameNoDayBeginAnew) {
    keyboard.Type("45");
    EXPECT_EQ(picker.Text(), "05/05/2003");
    EXPECT_EQ(picker.ActivePart(), DatePart::Day);
    keyboard.Press(key::Right);
    keyboard.Type("13");
    EXPECT_EQ(picker.Text(), "05/03/2003");
}

TEST_F(DatePickerTest, ADayThatTheMonthLacksIsItsLastUntilAnotherMonthIsTyped) {
    picker.SetDate(ToOleDate({2003, 2, 10}));
    keyboard.Type("31");
    EXPECT_EQ(picker.Text(), "28/02/2003");
    keyboard.Type("01");
    EXPECT_EQ(picker.Text(), "31/01/2003");
}

TEST_F(DatePickerTest, ADayOnTheWayMayLieOutsideTheRange) {
    picker.SetRange(ToOleDate({2003, 1, 1}), ToOleDate({2004, 1, 31}));
    picker.SetDate(ToOleDate({2004, 1, 20}));
    keyboard.Type("15");
    keyboard.Type("12");
    EXPECT_EQ(picker.Text(), "31/01/2004");
    keyboard.Type("2003");
    EXPECT_EQ(picker.Text(), "15/12/2003");
}

TEST_F(DatePickerTest, ZerosNameNoDayAndNoMonth) {
    keyboard.Type("0000");
    EXPECT_EQ(picker.Text(), "20/05/2003");
    EXPECT_EQ(picker.ActivePart(), DatePart::Year);
    keyboard.Type("0000");
    EXPECT_EQ(picker.Text(), "20/05/1753");
}

TEST_F(DatePickerTest, TwoDigitYearsAreOfTheNearestCentury) {
    named.SetDate(ToOleDate({2003, 5, 20}));
    named.SetFocus();
    keyboard.Press(key::Right);
    keyboard.Press(key::Right);
    keyboard.Type("98");
    EXPECT_EQ(named.Date(), ToOleDate({1998, 5, 20}));
    keyboard.Type("04");
    EXPECT_EQ(named.Date(), ToOleDate({2004, 5, 20}));
}

TEST_F(DatePickerTest, HandlersSeeTheDayThatIsBeingTyped) {
    std::string seen;
    picker.onKeyDown = [&](int& code, forms::Modifiers) {
        if (code == key::Enter) seen = picker.Text();
    };
    keyboard.Type("7");
    keyboard.Press(key::Enter);
    EXPECT_EQ(seen, "07/05/2003");
}

TEST_F(DatePickerTest, LeavingTheFieldEndsTheTyping) {
    keyboard.Type("1");
    form->other.SetFocus();
    picker.SetFocus();
    keyboard.Type("2");
    EXPECT_EQ(picker.Text(), "02/05/2003");
}

TEST_F(DatePickerTest, OtherKeysAreLeftToOthersAndCharactersBeep) {
    EXPECT_EQ(form->HandleKeyDown(key::Enter, {}), forms::KeyOutcome::Default);
    EXPECT_EQ(form->HandleKeyPress(key::Enter), forms::KeyOutcome::Default);
    EXPECT_EQ(desktop.beeps, 0);
    EXPECT_EQ(form->HandleKeyPress(U'x'), forms::KeyOutcome::Done);
    EXPECT_EQ(desktop.beeps, 1);
    EXPECT_EQ(picker.Text(), "20/05/2003");
}

// The calendar.

TEST_F(DatePickerTest, F4AltDownAndTheArrowOpenTheCalendar) {
    const CountingPeer* peer = CountingPeer::Give(picker);
    keyboard.Press(key::F4);
    keyboard.Press(key::Down, {.alt = true});
    ClickWithMouse(picker, {1700, 160});
    EXPECT_EQ(peer->dropDowns, 3);
    EXPECT_EQ(picker.Text(), "20/05/2003");
}

TEST_F(DatePickerTest, APressOnAPartChoosesIt) {
    RecordingSurface surface;
    picker.Draw(surface);
    const Drawn* year = surface.FindText("2003");
    ASSERT_NE(year, nullptr);
    ClickWithMouse(picker, {year->area.left + 50, 160});
    EXPECT_EQ(picker.ActivePart(), DatePart::Year);
    ClickWithMouse(picker, {surface.FindText("05")->area.left + 50, 160});
    EXPECT_EQ(picker.ActivePart(), DatePart::Month);
}

// The look.

TEST_F(DatePickerTest, TheActivePartStandsOutWhileTheFieldHasTheFocus) {
    RecordingSurface focused;
    picker.Draw(focused);
    ASSERT_NE(focused.FindText("20"), nullptr);
    EXPECT_TRUE(focused.IsFilled(focused.FindText("20")->area, forms::scheme::CurrentRow));
    EXPECT_TRUE(focused.HasFrame({0, 0, 1800, 330}, forms::scheme::Focus));
    EXPECT_THAT(focused.CutTexts(), IsEmpty());

    form->other.SetFocus();
    RecordingSurface left;
    picker.Draw(left);
    EXPECT_FALSE(left.IsFilled(left.FindText("20")->area, forms::scheme::CurrentRow));
    EXPECT_FALSE(left.HasFrame({0, 0, 1800, 330}, forms::scheme::Focus));
}

TEST_F(DatePickerTest, DigitsInTypingAreShownAsTheyAre) {
    keyboard.Press(key::Right);
    keyboard.Press(key::Right);
    keyboard.Type("20");
    RecordingSurface surface;
    picker.Draw(surface);
    EXPECT_THAT(surface.Texts(), testing::ElementsAre("20", "/", "05", "/", "20"));
}

TEST_F(DatePickerTest, AssistiveToolsReadTheDay) {
    EXPECT_EQ(picker.Accessible().role, forms::Role::DateField);
    EXPECT_EQ(picker.Accessible().value, "20/05/2003");
    EXPECT_TRUE(picker.Accessible().expandable);
    EXPECT_FALSE(picker.Accessible().expanded);
    picker.HandleDropped(true);
    EXPECT_TRUE(picker.Accessible().expanded);
}

TEST_F(DatePickerTest, AFormatWithoutPartsIsJustText) {
    forms::DatePicker& plain = form->plain;
    plain.SetFocus();
    keyboard.Type("1");
    keyboard.Press(key::Up);
    keyboard.Press(key::Right);
    EXPECT_EQ(plain.Text(), "--");
    EXPECT_EQ(plain.ActivePart(), DatePart::None);
    RecordingSurface surface;
    plain.Draw(surface);
    EXPECT_EQ(surface.Texts().size(), 1U);
}

}  // namespace
}  // namespace tavrin::tests
