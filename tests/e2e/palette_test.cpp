// The palette under real keys and clicks, in a plain message loop and in one that knows dialogs.

#include <windows.h>

#include <oleacc.h>

#include "e2e/driver/accessible_reader.h"
#include "e2e/driver/screen.h"
#include "e2e/host_test.h"

namespace tavrin::e2e {
namespace {

constexpr COLORREF Green = RGB(0, 255, 0);
constexpr POINT PointerInTheOpen{640, 480};

bool PointerHasMoved() {
    return PointerPlace().x == PointerInTheOpen.x - 100;
}

class PaletteTest : public HostTest, public testing::WithParamInterface<LoopKind> {
  protected:
    PaletteTest() : HostTest(GetParam()) {}

    void SetUp() override { palette = OpenPalette(); }

    /// Presses a key and waits for the button that is to have the focus and the lit caption then.
    void ExpectKeyLeadsTo(WORD key, int button) {
        PressKey(key);
        EXPECT_TRUE(AwaitFocus("cmdAction(" + std::to_string(button) + ")")) << FocusedName();
        EXPECT_TRUE(WaitUntil([&] { return LitCaption() == button; })) << LitCaption();
    }

    /// The one button whose caption is green, -1 if there is not exactly one.
    int LitCaption() const {
        int lit = -1;
        for (int i = 0; i < 4; ++i) {
            if (!ShowsColor(palette.Control("Label" + std::to_string(i + 1)), Green)) continue;
            if (lit >= 0) return -1;
            lit = i;
        }
        return lit;
    }

    Window palette;
};

// Keys.

TEST_P(PaletteTest, DownGoesToTheNextButtonAndAroundTheEnd) {
    ExpectKeyLeadsTo(VK_DOWN, 3);
    ExpectKeyLeadsTo(VK_DOWN, 0);
    ExpectKeyLeadsTo(VK_DOWN, 1);
    ExpectKeyLeadsTo(VK_DOWN, 2);
}

TEST_P(PaletteTest, UpGoesToThePreviousButtonAndAroundTheEnd) {
    ExpectKeyLeadsTo(VK_UP, 1);
    ExpectKeyLeadsTo(VK_UP, 0);
    ExpectKeyLeadsTo(VK_UP, 3);
}

TEST_P(PaletteTest, AnyOtherKeyGoesToTheFirstButton) {
    for (const WORD key : {WORD{'K'}, WORD{VK_TAB}, WORD{VK_RIGHT}, WORD{VK_SPACE}, WORD{VK_F5}}) {
        ExpectKeyLeadsTo(VK_UP, key == 'K' ? 1 : 3);
        ExpectKeyLeadsTo(key, 0);
    }
    EXPECT_EQ(OpenForms().size(), 1U) << "a swallowed key presses no button";
}

TEST_P(PaletteTest, EnterOpensTheButtonsWindow) {
    ExpectKeyLeadsTo(VK_DOWN, 3);
    PressKey(VK_RETURN);
    AwaitForm("CursValutar");
    EXPECT_TRUE(FindForm("Utilitati")) << "the palette stays";
}

TEST_P(PaletteTest, EveryKeyMovesThePointerOutOfTheWay) {
    for (const WORD key : {WORD{VK_DOWN}, WORD{VK_UP}, WORD{'K'}}) {
        MovePointer(PointerInTheOpen);
        PressKey(key);
        EXPECT_TRUE(WaitUntil(PointerHasMoved)) << PointerPlace().x;
        EXPECT_EQ(PointerPlace().y, PointerInTheOpen.y);
    }
}

TEST_P(PaletteTest, EnterAndEscapeMoveThePointerToo) {
    ExpectKeyLeadsTo(VK_DOWN, 3);
    MovePointer(PointerInTheOpen);
    PressKey(VK_RETURN);
    AwaitForm("CursValutar");
    EXPECT_TRUE(WaitUntil(PointerHasMoved)) << PointerPlace().x;

    Click(palette.Control("picCaption"));
    ASSERT_TRUE(WaitUntil([&] { return palette.HasFocus(); }));
    MovePointer(PointerInTheOpen);
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(AwaitClosed("Utilitati"));
    EXPECT_TRUE(WaitUntil(PointerHasMoved)) << PointerPlace().x;
}

TEST_P(PaletteTest, EscapeClosesItAndTheRateList) {
    ExpectKeyLeadsTo(VK_DOWN, 3);
    PressKey(VK_RETURN);
    AwaitForm("CursValutar");
    Click(palette.Control("picCaption"));
    ASSERT_TRUE(WaitUntil([&] { return palette.HasFocus(); }));
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(AwaitClosed("Utilitati"));
    EXPECT_TRUE(AwaitClosed("CursValutar"));
    host->Ui().Settle();
    EXPECT_TRUE(OpenForms().empty());
}

TEST_P(PaletteTest, ActivatingItLightsAndFocusesTheFirstButton) {
    ActivateHostWindow();
    Click(palette.Control("picCaption"));
    EXPECT_TRUE(AwaitFocus("cmdAction(0)"));
    EXPECT_TRUE(WaitUntil([&] { return LitCaption() == 0; }));
}

// The mouse.

TEST_P(PaletteTest, AClickOpensTheButtonsWindow) {
    Click(palette.Control("cmdAction(3)"));
    AwaitForm("CursValutar");
}

TEST_P(PaletteTest, ThePointerOverAnUnlitButtonChangesNothing) {
    ExpectKeyLeadsTo(VK_DOWN, 3);
    MovePointer(palette.Control("cmdAction(1)").Center());
    host->Ui().Settle();
    EXPECT_EQ(LitCaption(), 3);
    EXPECT_EQ(FocusedName(), "cmdAction(3)");
}

TEST_P(PaletteTest, ThePointerOverTheLitButtonTakesTheFocusThere) {
    // After Apel the first caption is lit while another button has the focus.
    MovePointer(palette.Control("cmdAction(0)").Center());
    EXPECT_TRUE(AwaitFocus("cmdAction(0)"));
    EXPECT_EQ(LitCaption(), 0);
}

TEST_P(PaletteTest, RollsUpToItsCaptionAndComesBackALittleLower) {
    const int loaded = palette.Height();
    const int width = palette.Width();
    const int strip = palette.Control("picCaption").Height();

    Click(palette.Control("imgRollup(0)"));
    EXPECT_TRUE(WaitUntil([&] { return palette.Height() == strip + 6; })) << palette.Height();
    EXPECT_EQ(palette.Width(), width);
    EXPECT_TRUE(WaitUntil([&] { return !palette.Control("imgRollup(0)").IsVisible(); }));
    for (const char* below : {"cmdAction(0)", "Label1"})
        EXPECT_GE(palette.Control(below).ScreenBounds().top, palette.ScreenBounds().bottom) << below;

    Click(palette.Control("imgRollup(1)"));
    EXPECT_TRUE(WaitUntil([&] { return palette.Control("imgRollup(0)").IsVisible(); }));
    // 20 twips are one or two pixels at the usual resolution, depending on how both heights round.
    EXPECT_GE(loaded - palette.Height(), 1);
    EXPECT_LE(loaded - palette.Height(), 2);
    EXPECT_EQ(palette.Width(), width);
}

TEST_P(PaletteTest, TheStripDragsTheWindow) {
    const POINT grip = palette.Control("picCaption").Center();
    const SIZE size{palette.Width(), palette.Height()};
    Drag(host->Ui(), grip, {grip.x + 200, grip.y + 160});
    // The move begins with the first step of the pointer, which itself is not part of it.
    EXPECT_TRUE(WaitUntil([&] { return palette.ScreenBounds().left >= 100; })) << palette.ScreenBounds().left;
    host->Ui().Settle();
    EXPECT_LE(palette.ScreenBounds().left, 200);
    EXPECT_GE(palette.ScreenBounds().top, 80);
    EXPECT_LE(palette.ScreenBounds().top, 160);
    EXPECT_EQ(palette.Width(), size.cx);
    EXPECT_EQ(palette.Height(), size.cy);
}

TEST_P(PaletteTest, TheStripDoesNotMoveUnderAPointerWithoutAButton) {
    const POINT grip = palette.Control("picCaption").Center();
    MovePointer(grip);
    MovePointer({grip.x + 20, grip.y});
    MovePointer(PointerInTheOpen);
    host->Ui().Settle();
    EXPECT_EQ(palette.ScreenBounds().left, 0);
    EXPECT_EQ(palette.ScreenBounds().top, 0);
}

TEST_P(PaletteTest, EitherButtonOnTheImageClosesIt) {
    Click(palette.Control("imgClose"));
    EXPECT_TRUE(AwaitClosed("Utilitati"));
    const Window again = OpenPalette();
    Click(again.Control("imgClose"), Button::Right);
    EXPECT_TRUE(AwaitClosed("Utilitati"));
    host->Ui().Settle();
    EXPECT_EQ(host->Iesire(), 2);
}

// In front.

TEST_P(PaletteTest, StaysOnTopWithoutTakingTheFocusBack) {
    ActivateHostWindow();
    host->Ui().Settle();
    EXPECT_TRUE(palette.IsTopmost());
    EXPECT_TRUE(palette.IsVisible());
    EXPECT_FALSE(palette.HasFocus());
    EXPECT_EQ(GetForegroundWindow(), host->MainWindow().Handle());
}

// What assistive tools see.

TEST_P(PaletteTest, ButtonsAreNamedByTheirCaptions) {
    const char* names[] = {"BLOC NOTES", "AGENDA", "CALCULATOR", "CURS VALUTAR"};
    for (int i = 0; i < 4; ++i) {
        const AccessibleFacts facts =
            ReadAccessible(host->Ui(), palette.Control("cmdAction(" + std::to_string(i) + ")"));
        EXPECT_EQ(facts.name, names[i]);
        EXPECT_EQ(facts.role, ROLE_SYSTEM_PUSHBUTTON);
        EXPECT_TRUE((facts.state & STATE_SYSTEM_FOCUSABLE) != 0);
        EXPECT_EQ((facts.state & STATE_SYSTEM_FOCUSED) != 0, i == 2);
    }
}

TEST_P(PaletteTest, AnAssistiveToolCanPressAButton) {
    EXPECT_EQ(DoDefaultAction(host->Ui(), palette.Control("cmdAction(3)")), S_OK);
    AwaitForm("CursValutar");
}

std::string NameOfLoop(const testing::TestParamInfo<LoopKind>& loop) {
    constexpr const char* names[] = {"Plain", "Dialog", "Filtering"};
    return names[static_cast<int>(loop.param)];
}

INSTANTIATE_TEST_SUITE_P(AnyLoop, PaletteTest,
                         testing::Values(LoopKind::Plain, LoopKind::Dialog, LoopKind::Filtering), NameOfLoop);

TEST_P(PaletteTest, ARepeatedEscapeLeavesTheNextWindowAlone) {
    constexpr LPARAM First = 1;
    constexpr LPARAM Repeated = First | LPARAM{1} << 30;
    const Window opened = OpenPalette();
    const HWND button = opened.Control("cmdAction(2)").Handle();
    PostMessageW(button, WM_KEYDOWN, VK_ESCAPE, Repeated);
    host->Ui().Settle();
    EXPECT_TRUE(opened.IsVisible());
    PostMessageW(button, WM_KEYDOWN, VK_ESCAPE, First);
    EXPECT_TRUE(AwaitClosed("Utilitati"));
}

}  // namespace
}  // namespace tavrin::e2e
