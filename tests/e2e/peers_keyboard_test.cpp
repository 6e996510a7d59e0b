// Keys, characters and the focus on their way from the platform to the model and back, in both kinds of
// loops.

#include "e2e/driver/screen.h"
#include "e2e/peers_test.h"

namespace tavrin::e2e {
namespace {

using PeersKeyboardTest = PeersTest;
INSTANTIATE_TEST_SUITE_P(, PeersKeyboardTest,
                         testing::Values(LoopKind::Plain, LoopKind::Dialog, LoopKind::Filtering));

TEST_P(PeersKeyboardTest, TypingReachesTheModelWithTheCaret) {
    Type("ab");
    EXPECT_EQ(Call([&] { return form->field.Text(); }), "ab");
    EXPECT_EQ(Call([&] { return form->field.SelStart(); }), 2);
}

TEST_P(PeersKeyboardTest, ACharacterBeyondTheFirstPlaneIsOneCharacter) {
    std::u32string pressed;
    Call([&] { form->field.onKeyPress = [&](char32_t& character) { pressed += character; }; });
    Send(L"a\U0001F600");
    EXPECT_EQ(Call([&] { return form->field.Text(); }), "a\xF0\x9F\x98\x80");
    EXPECT_EQ(Call([&] { return form->field.SelStart(); }), 2);
    EXPECT_EQ(pressed, U"a\U0001F600");
}

TEST_P(PeersKeyboardTest, ACharacterBeyondTheFirstPlaneArrivesWholeInEveryField) {
    std::string fieldSeen;
    std::string comboSeen;
    Call([&] {
        form->field.onChange = [&] { fieldSeen += form->field.Text() + "|"; };
        form->typed.onChange = [&] { comboSeen += form->typed.Text() + "|"; };
    });
    Send(L"\U0001F600");
    Call([&] { form->typed.SetFocus(); });
    Send(
        L"\U0001F600"
        L"b\U0001F601");
    EXPECT_EQ(fieldSeen, "\xF0\x9F\x98\x80|") << "nobody is told of half a character";
    EXPECT_EQ(comboSeen,
              "\xF0\x9F\x98\x80|\xF0\x9F\x98\x80"
              "b|\xF0\x9F\x98\x80"
              "b\xF0\x9F\x98\x81|");
    EXPECT_EQ(Control("typed").Text(), Call([&] { return form->typed.Text(); }));
}

TEST_P(PeersKeyboardTest, ASwallowedKeyTypesNothing) {
    Call([&] { form->preview = [](int& code) { code = code == 'Z' ? 0 : code; }; });
    Type("xzy");
    EXPECT_EQ(Call([&] { return form->field.Text(); }), "xy");
}

TEST_P(PeersKeyboardTest, ASwallowedCharacterIsNotTyped) {
    Call([&] {
        form->field.onKeyPress = [](char32_t& character) { character = character == U'z' ? 0 : character; };
    });
    Type("xzy");
    EXPECT_EQ(Call([&] { return form->field.Text(); }), "xy");
}

TEST_P(PeersKeyboardTest, TheCharacterOfAKeyThatMovesTheFocusGoesNowhere) {
    Call([&] {
        form->field.onKeyDown = [&](int& code, forms::Modifiers) {
            if (code == 'Q') form->inner.SetFocus();
        };
    });
    Type("q");
    EXPECT_EQ(FocusedName(), "inner");
    EXPECT_EQ(Call([&] { return form->field.Text() + form->inner.Text(); }), "");
    Type("w");
    EXPECT_EQ(Call([&] { return form->inner.Text(); }), "w");
}

TEST_P(PeersKeyboardTest, AHandlersOwnLoopLosesNoCharacter) {
    bool ended = false;
    Call([&] {
        form->field.onKeyDown = [&](int& code, forms::Modifiers) {
            ended = code == 'B';
            if (code != 'Q') return;
            code = 0;
            for (MSG message{}; !ended && GetMessageW(&message, nullptr, 0, 0) > 0;) {
                TranslateMessage(&message);
                DispatchMessageW(&message);
            }
        };
    });
    Type("qabc");
    EXPECT_EQ(Call([&] { return form->field.Text(); }), "abc");
}

TEST_P(PeersKeyboardTest, ASetTextPutsTheCaretFirstAndStaysEditable) {
    Type("old");
    Call([&] { form->field.SetText("new"); });
    Press(VK_DELETE);
    EXPECT_EQ(Call([&] { return form->field.Text(); }), "ew");
}

TEST_P(PeersKeyboardTest, ALockedFieldKeepsItsText) {
    Call([&] {
        form->field.SetText("fix");
        form->field.SetLocked(true);
    });
    Type("x");
    Press(VK_DELETE);
    EXPECT_EQ(Call([&] { return form->field.Text(); }), "fix");
}

TEST_P(PeersKeyboardTest, TabAndShiftTabWalkTheControls) {
    Press(VK_TAB);
    EXPECT_EQ(FocusedName(), "cmdStop");
    Press(VK_TAB);
    EXPECT_EQ(FocusedName(), "list");
    Press(VK_TAB, {VK_SHIFT});
    EXPECT_EQ(FocusedName(), "cmdStop");
    EXPECT_EQ(Call([&] { return form->ActiveControl(); }), &form->button);
}

TEST_P(PeersKeyboardTest, EnterSpaceAcceleratorAndMouseClickAButton) {
    int clicks = 0;
    Call([&] {
        form->button.onClick = [&] { ++clicks; };
        form->button.SetFocus();
    });
    Press(VK_RETURN);
    Press(VK_SPACE);
    Call([&] { form->field.SetFocus(); });
    Press('O', {VK_MENU});
    EXPECT_EQ(FocusedName(), "cmdStop");
    ClickOn("cmdStop");
    EXPECT_EQ(clicks, 4);
    EXPECT_EQ(Call([&] { return form->field.Text(); }), "");
}

/// The display says which keys are down whenever the pointer finds another window beneath it.
TEST_P(PeersKeyboardTest, AChordStaysWholeWhileWindowsComeAndGo) {
    constexpr int Rounds = 40;
    int clicks = 0;
    HWND other = nullptr;
    const RECT place = window.ScreenBounds();
    MovePointer(window.Center());
    Call([&] {
        form->button.onClick = [&] { ++clicks; };
        other = CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP, place.left, place.top,
                                window.Width(), window.Height(), nullptr, nullptr, nullptr, nullptr);
    });
    const auto flicker = [&other] {
        for (const int state : {SW_SHOWNA, SW_HIDE, SW_SHOWNA, SW_HIDE, SW_SHOWNA, SW_HIDE}) {
            ShowWindow(other, state);
            AskDisplay();
            MSG next{};
            PeekMessageW(&next, nullptr, 0, 0, PM_NOREMOVE);
        }
    };
    for (int round = 0; round < Rounds; ++round) {
        ui.Post(flicker);
        PressKey('O', {VK_MENU});
    }
    EXPECT_TRUE(WaitUntil([&] { return Call([&] { return clicks; }) == Rounds; })) << clicks;
    Call([&] { DestroyWindow(other); });
}

TEST_P(PeersKeyboardTest, TheKeyboardComesBackFromMessagesThatAreAnsweredAtOnce) {
    constexpr int Rounds = 40;
    int clicks = 0;
    Call([&] {
        form->button.onClick = [&] {
            ++clicks;
            MessageBoxW(GetActiveWindow(), L"Opreste ?", L"Sample", MB_OK | MB_TOPMOST);
        };
    });
    for (int round = 0; round < Rounds; ++round) {
        PressKey('O', {VK_MENU});
        PressKey(VK_RETURN);
    }
    EXPECT_TRUE(WaitUntil([&] { return Call([&] { return clicks; }) == Rounds; })) << clicks;
    EXPECT_TRUE(AwaitFocus("cmdStop"));
}

TEST_P(PeersKeyboardTest, AltAndF10OpenNoMenu) {
    Press(VK_F10);
    Type("a");
    Press(VK_MENU);
    Type("b");
    EXPECT_EQ(Call([&] { return form->field.Text(); }), "ab");
}

TEST_P(PeersKeyboardTest, AltF4ClosesTheForm) {
    Press(VK_F4, {VK_MENU});
    EXPECT_TRUE(IsGone());
}

// A program may say of the last button to go up that it is not the left one: nobody would tell of the left
// one's release.
TEST_P(PeersKeyboardTest, APressEndsWithTheMouse) {
    const HWND button = Control("cmdStop").Handle();
    int clicks = 0;
    Call([&] {
        form->button.onClick = [&] { ++clicks; };
        SendMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    });
    EXPECT_TRUE(Call([&] { return form->button.IsPressed(); }));
    Call([&] { SendMessageW(button, WM_MBUTTONUP, 0, MAKELPARAM(5, 5)); });
    EXPECT_FALSE(Call([&] { return form->button.IsPressed(); }));
    Call([&] { SendMessageW(button, WM_LBUTTONUP, 0, MAKELPARAM(5, 5)); });
    EXPECT_EQ(Call([&] { return clicks; }), 0);
}

// What a focus brings about may take the mouse, another window's becoming active for one.
TEST_P(PeersKeyboardTest, APressHasTheMouseWhateverTheFocusBringsAbout) {
    const HWND button = Control("cmdStop").Handle();
    const HWND holder = Call([&] {
        form->button.onGotFocus = [] { ReleaseCapture(); };
        SendMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        return GetCapture();
    });
    EXPECT_TRUE(Call([&] { return form->button.IsPressed(); }));
    EXPECT_EQ(holder, button);
    Call([&] { SendMessageW(button, WM_LBUTTONUP, 0, MAKELPARAM(5, 5)); });
}

TEST_P(PeersKeyboardTest, APressEndsWhereAMenuTakesTheMouse) {
    const HWND field = Control("field").Handle();
    ui.Post([field] {
        SendMessageW(field, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        SendMessageW(field, WM_RBUTTONUP, MK_LBUTTON, MAKELPARAM(5, 5));
    });
    Require("the field's menu", [this] {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        return GetGUIThreadInfo(ui.Id(), &info) != FALSE && (info.flags & GUI_INMENUMODE) != 0;
    });
    Call([] { EndMenu(); });
    ui.Settle();
    EXPECT_FALSE(Call([&] { return form->field.IsPressed(); }));
}

TEST_P(PeersKeyboardTest, ADisabledFrameGivesItsFocusAway) {
    Call([&] { form->inner.SetFocus(); });
    Call([&] { form->frame.SetEnabled(false); });
    EXPECT_FALSE(Control("inner").IsEnabled());
    EXPECT_THAT(FocusedName(), testing::AllOf(testing::Ne("inner"), testing::Ne("")));
    Call([&] { form->frame.SetEnabled(true); });
    EXPECT_TRUE(Control("inner").IsEnabled());
}

TEST_P(PeersKeyboardTest, AHiddenFrameGivesItsFocusAway) {
    Call([&] { form->inner.SetFocus(); });
    Call([&] { form->frame.SetVisible(false); });
    EXPECT_THAT(FocusedName(), testing::AllOf(testing::Ne("inner"), testing::Ne("frame"), testing::Ne("")));
}

TEST_P(PeersKeyboardTest, TheFocusReturnsFromWhatCannotTakeIt) {
    Call([&] { SetFocus(Control("frame").Handle()); });
    EXPECT_EQ(FocusedName(), "field");
}

TEST_P(PeersKeyboardTest, ADisabledOpenerComesBackWithItsFocus) {
    std::shared_ptr<SampleForm> child;
    Call([&] {
        form->button.SetFocus();
        form->SetEnabled(false);
        child = std::make_shared<SampleForm>(*desktop, "Child");
        child->whenUnloading = [&] { form->SetEnabled(true); };
        child->MoveTo(8000, 3000);
        child->Show();
    });
    AwaitForm("Child");
    EXPECT_EQ(Call([&] { return desktop->ActiveForm(); }), child.get());
    EXPECT_EQ(Call([&] { return form->deactivations; }), 1);
    Call([&] { child->Unload(); });
    EXPECT_TRUE(WaitUntil([] { return FocusedName() == "cmdStop"; }));
    EXPECT_EQ(Call([&] { return desktop->ActiveForm(); }), form.get());
    Call([&] { child.reset(); });
}

}  // namespace
}  // namespace tavrin::e2e
