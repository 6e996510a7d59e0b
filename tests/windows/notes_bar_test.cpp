// The note pad's window: what it is made of, how it opens and closes, its bar under the mouse, its keys.

#include <algorithm>

#include "notes_fixture.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using forms::Icon;
using forms::MouseButton;
using forms::ToolLook;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr forms::Modifiers Control{.control = true};

class NotesBarTest : public NotesTest {};

// What it is made of.

TEST_F(NotesBarTest, IsCalledBlocNotes) {
    const Notes& window = Open();
    EXPECT_EQ(window.Name(), "Notes");
    EXPECT_EQ(window.Caption(), "Bloc Notes");
}

TEST_F(NotesBarTest, FourButtonsHaveToolTips) {
    const Notes& window = Open();
    std::vector<std::string> tips;
    for (const auto& button : window.ImgBouton)
        tips.push_back(button->ToolTip());
    EXPECT_THAT(tips, ElementsAre("Reinitializeaza/Incarca Nota", "Salveaza Nota", "Alege Font",
                                  "Culoare Text", "", "", "", ""));
}

TEST_F(NotesBarTest, AssistiveToolsHearWhatEveryButtonDoes) {
    const Notes& window = Open();
    std::vector<std::string> names;
    for (const auto& button : window.ImgBouton) {
        EXPECT_EQ(button->Accessible().role, forms::Role::PushButton);
        names.push_back(button->Accessible().name);
    }
    EXPECT_THAT(names, ElementsAre("Reinitializeaza/Incarca Nota", "Salveaza Nota", "Alege Font",
                                   "Culoare Text", "Aldin", "Cursiv", "Subliniat", "Inchide"));
    EXPECT_EQ(window.txtNota.Accessible().name, "Nota");
}

TEST_F(NotesBarTest, LoadingGivesEveryButtonItsPicture) {
    auto& window = application.Default<Notes>();
    for (const auto& button : window.ImgBouton)
        EXPECT_EQ(button->Picture(), Icon::None);
    window.Load();
    std::vector<Icon> pictures;
    for (const auto& button : window.ImgBouton)
        pictures.push_back(button->Picture());
    EXPECT_THAT(pictures, ElementsAre(Icon::NewNote, Icon::Save, Icon::Letters, Icon::TextColor, Icon::Bold,
                                      Icon::Italic, Icon::Underline, Icon::Close));
}

TEST_F(NotesBarTest, ButtonsStandOnTheBarInTheirOrderWithoutOverlap) {
    const Notes& window = Open();
    const forms::Rect bar = window.PctBarreFond.Bounds();
    EXPECT_EQ(bar.width, window.ClientSize().width);
    int right = 0;
    for (const auto& button : window.ImgBouton) {
        EXPECT_GE(button->Bounds().left, right);
        EXPECT_GE(button->Bounds().top, bar.top);
        EXPECT_LE(button->Bounds().Bottom(), bar.Bottom());
        right = button->Bounds().Right();
    }
    EXPECT_LE(right, bar.width);
    EXPECT_GE(window.txtNota.Bounds().top, bar.Bottom());
    EXPECT_LE(window.txtNota.Bounds().Bottom(), window.ClientSize().height);
    EXPECT_LE(window.txtNota.Bounds().Right(), window.ClientSize().width);
    // The first declared lies in front.
    EXPECT_EQ(window.Controls().front(), window.ImgBouton.begin()->get());
}

TEST_F(NotesBarTest, ButtonsOfAGroupTouchAndGroupsStandApart) {
    const Notes& window = Open();
    std::vector<bool> standsApart;
    for (int i = 1; i < Notes::ButtonCount; ++i) {
        const int gap = window.ImgBouton[i].Bounds().left - window.ImgBouton[i - 1].Bounds().Right();
        standsApart.push_back(gap > 0);
        EXPECT_TRUE(gap == 0 || gap >= 120) << i;
    }
    EXPECT_THAT(standsApart, ElementsAre(false, true, false, true, false, false, true));
}

TEST_F(NotesBarTest, TheButtonsAreSquaresOfWholePixels) {
    const Notes& window = Open();
    const forms::Rect& first = window.ImgBouton[0].Bounds();
    EXPECT_EQ(first.width, first.height);
    EXPECT_EQ(first.width % 15, 0);
    EXPECT_EQ(first.left % 15, 0);
    for (const auto& button : window.ImgBouton) {
        EXPECT_EQ(button->Bounds().width, first.width);
        EXPECT_EQ(button->Bounds().height, first.height);
        EXPECT_EQ(button->Bounds().top, first.top);
    }
}

TEST_F(NotesBarTest, TheButtonsAreOfTheBarsColor) {
    const Notes& window = Open();
    for (const auto& button : window.ImgBouton)
        EXPECT_EQ(button->BackColor(), window.PctBarreFond.BackColor()) << button->Index();
    EXPECT_NE(window.PctBarreFond.BackColor(), window.txtNota.BackColor());
}

TEST_F(NotesBarTest, SizeAndPlaceFollowTheScreen) {
    const Notes& window = Open();
    const forms::Size screen = desktop.ScreenSize();
    EXPECT_NEAR(window.Bounds().width, screen.width / 3.0, desktop.TwipsPerPixelX());
    EXPECT_NEAR(window.Bounds().height, screen.height / 2.0, desktop.TwipsPerPixelY());
    EXPECT_GE(window.Bounds().left, screen.width / 2);
    EXPECT_LT(window.Bounds().Right(), screen.width);
    EXPECT_GT(window.Bounds().top, 0);
    EXPECT_LT(window.Bounds().Bottom(), screen.height);
}

// Opening and closing.

TEST_F(NotesBarTest, OpensWithTheFocusInTheText) {
    Open();
    EXPECT_EQ(ActiveWindow(), "Notes");
    EXPECT_EQ(FocusedControl(), "txtNota");
    keyboard.Type("abc");
    EXPECT_EQ(editor->Text(), "abc");
}

TEST_F(NotesBarTest, ThereIsOneNotePad) {
    Notes& window = Open();
    keyboard.Type("abc");
    window.ShowForm();
    EXPECT_EQ(&application.Default<Notes>(), &window);
    EXPECT_EQ(desktop.Forms().size(), 1U);
    EXPECT_EQ(window.txtNota.Text(), "abc");
}

TEST_F(NotesBarTest, EachLoadingMakesAMessageServiceOnce) {
    Notes& window = Open();
    EXPECT_EQ(messages.created, 1);
    window.ShowForm();
    EXPECT_EQ(messages.created, 1) << "it was only shown again";
    window.Unload();
    Open();
    EXPECT_EQ(messages.created, 2);
}

TEST_F(NotesBarTest, KeepsItselfOnTopWhenItIsEnteredAndWhenItIsLeft) {
    Notes& window = Open();
    EXPECT_EQ(desktop.CallsOf(window).keptOnTop, 1);
    desktop.ActivateByUser(nullptr);
    EXPECT_EQ(desktop.CallsOf(window).keptOnTop, 2);
    desktop.ActivateByUser(&window);
    EXPECT_EQ(desktop.CallsOf(window).keptOnTop, 3);
}

TEST_F(NotesBarTest, EnteringItAgainFocusesTheText) {
    Notes& window = Open();
    window.ImgBouton[Notes::Save].SetFocus();
    desktop.ActivateByUser(nullptr);
    desktop.ActivateByUser(&window);
    EXPECT_EQ(FocusedControl(), "txtNota");
}

TEST_F(NotesBarTest, EscapeClosesFromAnywhereWithoutAQuestion) {
    Open();
    keyboard.Type("not saved");
    keyboard.Press(key::Escape);
    EXPECT_FALSE(IsOpen());
    for (int i = 0; i < Notes::ButtonCount; ++i) {
        Open().ImgBouton[i].SetFocus();
        keyboard.Press(key::Escape);
        EXPECT_FALSE(IsOpen()) << i;
    }
    EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(NotesBarTest, TheLastButtonClosesWithoutAQuestion) {
    Notes& window = Open();
    keyboard.Type("not saved");
    ClickWithMouse(window.ImgBouton[Notes::Leave]);
    EXPECT_FALSE(IsOpen());
    EXPECT_THAT(messages.shown, IsEmpty());
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(NotesBarTest, ThePaletteClosesIt) {
    Open();
    application.UnloadWindow("Notes");
    EXPECT_FALSE(IsOpen());
}

// The bar under the mouse.

TEST_F(NotesBarTest, ShowToolDrawsTheBorderThatItIsTold) {
    Notes& window = Open();
    EXPECT_EQ(Looks(window), AllRestingBut(-1, ToolLook::Resting));
    window.ShowTool(2, ToolLook::Sunken);
    EXPECT_EQ(Looks(window), AllRestingBut(2, ToolLook::Sunken));
    window.ShowTool(2, ToolLook::Raised);
    EXPECT_EQ(Looks(window), AllRestingBut(2, ToolLook::Raised));
    window.ShowTool(2);
    EXPECT_EQ(Looks(window), AllRestingBut(-1, ToolLook::Resting));
}

TEST_F(NotesBarTest, TheButtonUnderTheMouseIsRaisedAndNoOther) {
    Notes& window = Open();
    window.ImgBouton[1].HandleMouseMove({MouseButton::None, {100, 100}, {}});
    EXPECT_EQ(Looks(window), AllRestingBut(1, ToolLook::Raised));
    window.ImgBouton[2].HandleMouseMove({MouseButton::None, {100, 100}, {}});
    EXPECT_EQ(Looks(window), AllRestingBut(2, ToolLook::Raised));
}

TEST_F(NotesBarTest, BordersAreDrawnAnewOnlyOnADifferentButton) {
    Notes& window = Open();
    window.ImgBouton[1].HandleMouseMove({MouseButton::None, {100, 100}, {}});
    window.ShowTool(1, ToolLook::Sunken);
    window.ImgBouton[1].HandleMouseMove({MouseButton::None, {120, 100}, {}});
    EXPECT_EQ(Looks(window), AllRestingBut(1, ToolLook::Sunken));
    window.ImgBouton[0].HandleMouseMove({MouseButton::None, {100, 100}, {}});
    EXPECT_EQ(Looks(window), AllRestingBut(0, ToolLook::Raised));
}

TEST_F(NotesBarTest, ButtonsRestWhenTheMouseIsElsewhere) {
    Notes& window = Open();
    const auto hover = [&] { window.ImgBouton[1].HandleMouseMove({MouseButton::None, {100, 100}, {}}); };
    hover();
    window.HandleMouseMove({MouseButton::None, {10, 3000}, {}});
    EXPECT_EQ(Looks(window), AllRestingBut(-1, ToolLook::Resting)) << "over the window";
    hover();
    EXPECT_EQ(Looks(window), AllRestingBut(1, ToolLook::Raised)) << "the window forgets the button it left";
    window.PctBarreFond.HandleMouseMove({MouseButton::None, {10, 10}, {}});
    EXPECT_EQ(Looks(window), AllRestingBut(-1, ToolLook::Resting)) << "over the bar";
    hover();
    window.ImgBouton[1].HandleMouseLeave();
    EXPECT_EQ(Looks(window), AllRestingBut(-1, ToolLook::Resting)) << "out of the window";
}

TEST_F(NotesBarTest, EveryButtonIsRaisedUnderTheMouseAndRestsAfterIt) {
    Notes& window = Open();
    for (int i = 0; i < Notes::ButtonCount; ++i) {
        window.ImgBouton[i].HandleMouseMove({MouseButton::None, {100, 100}, {}});
        EXPECT_EQ(Looks(window), AllRestingBut(i, ToolLook::Raised)) << i;
        window.HandleMouseMove({MouseButton::None, {10, 3000}, {}});
        EXPECT_EQ(Looks(window), AllRestingBut(-1, ToolLook::Resting)) << i;
    }
}

TEST_F(NotesBarTest, LeavingOneButtonForAnotherLeavesTheOtherRaised) {
    Notes& window = Open();
    window.ImgBouton[1].HandleMouseMove({MouseButton::None, {100, 100}, {}});
    window.ImgBouton[2].HandleMouseMove({MouseButton::None, {100, 100}, {}});
    window.ImgBouton[1].HandleMouseLeave();
    EXPECT_EQ(Looks(window), AllRestingBut(2, ToolLook::Raised));
}

TEST_F(NotesBarTest, OnlyTheLeftButtonPresses) {
    Notes& window = Open();
    auto& button = window.ImgBouton[Notes::Bold];
    for (const MouseButton other : {MouseButton::Right, MouseButton::Middle}) {
        button.HandleMouseDown({other, {100, 100}, {}});
        EXPECT_EQ(button.Look(), ToolLook::Resting);
        button.HandleMouseUp({other, {100, 100}, {}});
        EXPECT_EQ(button.Look(), ToolLook::Raised);
        window.HandleMouseMove({});
    }
    EXPECT_FALSE(editor->SelectionFormat().bold.value());
    button.HandleMouseDown({MouseButton::Left, {100, 100}, {}});
    EXPECT_EQ(button.Look(), ToolLook::Sunken);
    EXPECT_FALSE(editor->SelectionFormat().bold.value()) << "nothing happens before the release";
    button.HandleMouseUp({MouseButton::Left, {100, 100}, {}});
    EXPECT_EQ(button.Look(), ToolLook::Raised);
    EXPECT_TRUE(editor->SelectionFormat().bold.value());
}

TEST_F(NotesBarTest, AReleaseBesideTheButtonDoesNothing) {
    Notes& window = Open();
    window.ImgBouton[Notes::Leave].HandleMouseDown({MouseButton::Left, {100, 100}, {}});
    window.ImgBouton[Notes::Leave].HandleMouseUp({MouseButton::Left, {100, 2000}, {}});
    EXPECT_TRUE(IsOpen());
}

// Keys.

TEST_F(NotesBarTest, TabIsTextAndShiftTabReachesTheBar) {
    Open();
    keyboard.Press(key::Tab);
    EXPECT_EQ(editor->Text(), "\t");
    keyboard.Press(key::Tab, {.shift = true});
    EXPECT_EQ(FocusedControl(), "ImgBouton(7)");
    keyboard.Press(key::Left);
    EXPECT_EQ(FocusedControl(), "ImgBouton(6)");
    keyboard.Press(key::Space);
    EXPECT_TRUE(editor->SelectionFormat().underline.value());
    EXPECT_EQ(FocusedControl(), "txtNota") << "the next key is text again";
}

TEST_F(NotesBarTest, CtrlAndALetterPressTheButtons) {
    Open();
    keyboard.Press('B', Control);
    keyboard.Press('I', Control);
    keyboard.Press('U', Control);
    const forms::CharacterFormat format = editor->SelectionFormat();
    EXPECT_TRUE(format.bold.value() && format.italic.value() && format.underline.value());
    keyboard.Press('S', Control);
    EXPECT_EQ(desktop.dialogs.saved.size(), 1U);
    keyboard.Press('D', Control);
    EXPECT_EQ(desktop.dialogs.fonts.size(), 1U);
    keyboard.Press('N', Control);
    keyboard.Press('O', Control);
    EXPECT_EQ(messages.shown.size(), 2U);
    EXPECT_EQ(editor->Text(), "") << "no key of these is text";
}

TEST_F(NotesBarTest, OtherKeysWithCtrlAreTheEditors) {
    Open();
    keyboard.Press('B', {.control = true, .alt = true});
    keyboard.Press('X', Control);
    keyboard.Press('B');
    EXPECT_FALSE(editor->SelectionFormat().bold.value());
}

}  // namespace
}  // namespace tavrin::tests
