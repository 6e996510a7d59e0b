// A form that unloads while the platform is still busy with one of its windows, and what is left afterwards.

#include "e2e/driver/accessible_reader.h"
#include "e2e/driver/platform.h"
#include "e2e/driver/resource_count.h"
#include "e2e/peers_test.h"

namespace tavrin::e2e {
namespace {

class PeersUnloadingTest : public PeersTest {
  protected:
    std::function<void()> UnloadIt() {
        return [this] { form->Unload(); };
    }
};
INSTANTIATE_TEST_SUITE_P(, PeersUnloadingTest, testing::Values(LoopKind::Plain, LoopKind::Dialog));

TEST_P(PeersUnloadingTest, InTheChangeOfAField) {
    Call([&] { form->field.onChange = UnloadIt(); });
    Type("a");
    EXPECT_TRUE(IsGone());
}

TEST_P(PeersUnloadingTest, InAKeyPress) {
    Call([&] { form->field.onKeyPress = [this](char32_t&) { form->Unload(); }; });
    Type("a");
    EXPECT_TRUE(IsGone());
}

TEST_P(PeersUnloadingTest, InTheKeyPreview) {
    Call([&] { form->preview = [this](int&) { form->Unload(); }; });
    Press(VK_ESCAPE);
    EXPECT_TRUE(IsGone());
}

TEST_P(PeersUnloadingTest, InAClick) {
    Call([&] { form->button.onClick = UnloadIt(); });
    ClickOn("cmdStop");
    EXPECT_TRUE(IsGone());
}

TEST_P(PeersUnloadingTest, WhenTheMouseGoesDownOnAField) {
    Call([&] { form->field.onMouseDown = [this](const forms::MouseInput&) { form->Unload(); }; });
    ClickOn("field");
    EXPECT_TRUE(IsGone());
}

TEST_P(PeersUnloadingTest, InTheChoiceOfAnEntry) {
    Call([&] { form->list.onClick = UnloadIt(); });
    ClickOn("list");
    ClickInList(form->list, 24);
    EXPECT_TRUE(IsGone());
}

TEST_P(PeersUnloadingTest, InTheTextOfAList) {
    Call([&] {
        form->typed.onChange = UnloadIt();
        form->typed.SetFocus();
    });
    Type("a");
    EXPECT_TRUE(IsGone());
}

TEST_P(PeersUnloadingTest, InTheChoiceOfADay) {
    Call([&] {
        form->date.onChange = UnloadIt();
        form->date.SetFocus();
    });
    Press(VK_F4);
    Press(VK_LEFT);
    Press(VK_RETURN);
    EXPECT_TRUE(IsGone());
}

TEST_P(PeersUnloadingTest, WhenTheFocusLeaves) {
    Call([&] {
        form->inner.onLostFocus = UnloadIt();
        form->inner.SetFocus();
    });
    Press(VK_TAB);
    EXPECT_TRUE(IsGone());
}

TEST_P(PeersUnloadingTest, WhenSomebodyElseDestroysTheWindow) {
    Call([&] { DestroyWindow(window.Handle()); });
    EXPECT_TRUE(IsGone());
}

TEST_P(PeersUnloadingTest, APressThatDragsTheWindowIsNoClick) {
    int clicks = 0;
    Call([&] {
        form->button.onMouseDown = [this](const forms::MouseInput&) { form->DragByCaption(); };
        form->button.onClick = [&] { ++clicks; };
    });
    ClickOn("cmdStop");
    EXPECT_EQ(clicks, 0);
}

TEST_P(PeersUnloadingTest, WhatAnAssistiveToolHoldsOutlivesItsControlUnconnected) {
    win32::ComPtr<IAccessible> held = Call([&] { return OpenAccessible(Control("cmdStop")); });
    ASSERT_TRUE(held);
    Unload();
    LONG children = -1;
    EXPECT_EQ(Call([&] { return held->get_accChildCount(&children); }), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(children, 0);
    EXPECT_TRUE(Call([&] { return desktop->IsInUse(); })) << "the module must stay loaded for it";
    Call([&] { held.Reset(); });
    EXPECT_TRUE(IsGone());
}

TEST_P(PeersUnloadingTest, NothingIsLeftOfAForm) {
    const auto openAndUse = [this] {
        if (!form) Open();
        Call([&] { form->date.SetFocus(); });
        Press(VK_F4);
        Unload();
        ASSERT_TRUE(IsGone());
    };
    openAndUse();  // what the system keeps once for all
    openAndUse();
    constexpr int Lives = 10;
    ResourceCount expected = ResourceCount::Take();
    for (int i = 0; i < Lives; ++i)
        openAndUse();
    // Wine's calendar makes a bold font whenever it is given one, and forgets the one before.
    if (IsWine()) expected.gdiObjects["font"] += Lives;
    EXPECT_EQ(ResourceCount::Take(), expected);
}

}  // namespace
}  // namespace tavrin::e2e
