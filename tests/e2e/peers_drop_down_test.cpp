// Lists and the calendar: what is open acts on keys first, and closing it leaves everything as the model
// says.

#include "e2e/peers_test.h"

namespace tavrin::e2e {
namespace {

class PeersDropDownTest : public PeersTest {
  protected:
    int ListIndex() {
        return Call([&] { return form->list.ListIndex(); });
    }
    bool IsListOpen() {
        return Call([&] { return form->list.IsDropped(); });
    }
    data::OleDate Date() {
        return Call([&] { return form->date.Date(); });
    }
    bool IsCalendarOpen() { return FindForm("Calendar").has_value(); }
};
INSTANTIATE_TEST_SUITE_P(, PeersDropDownTest, testing::Values(LoopKind::Plain, LoopKind::Dialog));

TEST_P(PeersDropDownTest, AClosedListIsAsHighAsTheControl) {
    for (const char* name : {"list", "typed"})
        EXPECT_EQ(Control(name).Height(), Control("field").Height()) << name;
}

TEST_P(PeersDropDownTest, EscClosesAnOpenListAndNothingElse) {
    int previewed = 0;
    Call([&] {
        form->list.SetFocus();
        form->preview = [&](int& code) { previewed += code == VK_ESCAPE; };
    });
    Press(VK_F4);
    ASSERT_TRUE(IsListOpen());
    Press(VK_DOWN);
    Press(VK_ESCAPE);
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(ListIndex(), 0);
    EXPECT_EQ(previewed, 0);
}

TEST_P(PeersDropDownTest, EnterChoosesInAnOpenListOnce) {
    int clicks = 0;
    Call([&] {
        form->list.SetFocus();
        form->list.onClick = [&] { ++clicks; };
    });
    Press(VK_F4);
    Press(VK_DOWN);
    Press(VK_RETURN);
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(ListIndex(), 1);
    EXPECT_EQ(clicks, 1);
}

TEST_P(PeersDropDownTest, AClickOpensTheListAndChooses) {
    ClickOn("list");
    ASSERT_TRUE(IsListOpen());
    ClickInList(form->list, 24);
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(ListIndex(), 1);
}

TEST_P(PeersDropDownTest, ChoosingTheChosenEntryIsAChoiceToo) {
    int clicks = 0;
    Call([&] {
        form->list.SetFocus();
        form->list.onClick = [&] { ++clicks; };
    });
    Press(VK_F4);
    Press(VK_RETURN);
    EXPECT_EQ(clicks, 1) << "by Enter";
    ClickOn("list");
    ClickInList(form->list, 8);
    EXPECT_EQ(clicks, 2) << "by mouse";
    EXPECT_EQ(ListIndex(), 0);
    ClickOn("list");
    ClickInList(form->list, 24);
    EXPECT_EQ(clicks, 3) << "another one, once";
    EXPECT_EQ(ListIndex(), 1);
    Press(VK_F4);
    Press(VK_UP);
    Press(VK_ESCAPE);
    EXPECT_EQ(clicks, 3) << "given up";
}

TEST_P(PeersDropDownTest, AHandlerMayRefillTheListThatItWasChosenFrom) {
    Call([&] {
        form->list.onClick = [&] {
            form->list.onClick = nullptr;
            form->list.Clear();
            form->list.AddItem("Nou");
        };
    });
    ClickOn("list");
    ClickInList(form->list, 24);
    EXPECT_EQ(Call([&] { return form->list.ListCount(); }), 1);
    EXPECT_EQ(SendMessageW(Control("list").Handle(), CB_GETCOUNT, 0, 0), 1);
}

TEST_P(PeersDropDownTest, AnyTextMayBeTypedOrSet) {
    int changes = 0;
    Call([&] {
        form->typed.SetFocus();
        form->typed.onChange = [&] { ++changes; };
    });
    Type("x");
    EXPECT_EQ(Call([&] { return form->typed.Text(); }), "x");
    EXPECT_EQ(changes, 1);
    Call([&] { form->typed.SetText("$"); });
    EXPECT_EQ(Control("typed").Text(), "$");
    EXPECT_EQ(changes, 2);
}

TEST_P(PeersDropDownTest, TheCalendarChoosesByKeys) {
    Call([&] { form->date.SetFocus(); });
    const int activations = Call([&] { return form->activations; });
    Press(VK_F4);
    ASSERT_TRUE(IsCalendarOpen());
    Press(VK_RIGHT);
    Press(VK_DOWN);
    Press(VK_RETURN);
    EXPECT_FALSE(IsCalendarOpen());
    EXPECT_EQ(Date(), data::ToOleDate({2003, 5, 28}));
    EXPECT_TRUE(WaitUntil([] { return FocusedName() == "date"; })) << FocusedName();
    EXPECT_EQ(Call([&] { return form->activations; }), activations) << "the form was never left";
}

TEST_P(PeersDropDownTest, TheCalendarStaysInTheRange) {
    Call([&] {
        form->date.SetDate(data::ToOleDate({2003, 1, 3}));
        form->date.SetFocus();
    });
    Press(VK_F4);
    Press(VK_UP);
    Press(VK_RETURN);
    EXPECT_EQ(Date(), data::ToOleDate({2003, 1, 1}));
}

TEST_P(PeersDropDownTest, EscAndAClickElsewhereCloseTheCalendarUnchanged) {
    Call([&] { form->date.SetFocus(); });
    Press(VK_F4);
    Press(VK_LEFT);
    Press(VK_ESCAPE);
    EXPECT_FALSE(IsCalendarOpen());
    Press(VK_F4);
    ASSERT_TRUE(IsCalendarOpen());
    ClickOn("cmdStop");
    EXPECT_FALSE(IsCalendarOpen());
    EXPECT_TRUE(WaitUntil([] { return FocusedName() == "cmdStop"; })) << FocusedName();
    EXPECT_EQ(Date(), data::ToOleDate({2003, 5, 20}));
}

}  // namespace
}  // namespace tavrin::e2e
