#include "shell/utilitati.h"

#include <gmock/gmock.h>

#include <cmath>

#include "support/window_test.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using forms::Green;
using forms::Icon;
using forms::MouseButton;
using forms::Red;
using shell::Utilitati;
using testing::ElementsAre;

/// A window that does nothing but note when it is unloaded.
class PlainWindow : public forms::Form {
  public:
    PlainWindow(forms::Desktop& desktop, const std::string& name, std::vector<std::string>& unloads)
        : Form(desktop, name, name, forms::BorderStyle::FixedDialog), unloads_(unloads) {}

  protected:
    void OnUnload() override { unloads_.push_back(Name()); }

  private:
    std::vector<std::string>& unloads_;
};

class UtilitatiTest : public WindowTest {
  protected:
    UtilitatiTest() {
        for (const char* target : {"Notes", "Agenda", "frmCalculator", "CursValutar"}) {
            application.AddLauncher(target,
                                    [this, target](shell::Application&) { launched.emplace_back(target); });
        }
    }
    ~UtilitatiTest() override { desktop.UnloadAll(); }

    Utilitati& Open() {
        auto& palette = application.Default<Utilitati>();
        palette.Load();
        palette.Show();
        return palette;
    }

    /// As the host's Apel leaves it: shown, with the focus on the calculator's button.
    Utilitati& OpenAsApelDoes() {
        Utilitati& palette = Open();
        palette.cmdAction[2].SetFocus();
        return palette;
    }

    forms::Form& OpenPlain(const std::string& name) {
        plain.push_back(std::make_shared<PlainWindow>(desktop, name, unloads));
        plain.back()->Show();
        return *plain.back();
    }

    static std::vector<forms::Color> CaptionColors(const Utilitati& palette) {
        return {palette.Label1.ForeColor(), palette.Label2.ForeColor(), palette.Label3.ForeColor(),
                palette.Label4.ForeColor()};
    }

    std::vector<std::string> launched;
    std::vector<std::string> unloads;
    std::vector<std::shared_ptr<forms::Form>> plain;
};

TEST_F(UtilitatiTest, CaptionsAndPicturesStandBesideTheirButtons) {
    const Utilitati& palette = Open();
    EXPECT_EQ(palette.Label1.Caption(), "BLOC NOTES");
    EXPECT_EQ(palette.Label2.Caption(), "AGENDA");
    EXPECT_EQ(palette.Label3.Caption(), "CALCULATOR");
    EXPECT_EQ(palette.Label4.Caption(), "CURS VALUTAR");
    EXPECT_EQ(palette.cmdAction[0].Picture(), Icon::NotePad);
    EXPECT_EQ(palette.cmdAction[1].Picture(), Icon::AddressBook);
    EXPECT_EQ(palette.cmdAction[2].Picture(), Icon::Calculator);
    EXPECT_EQ(palette.cmdAction[3].Picture(), Icon::Exchange);
    for (const auto& button : palette.cmdAction) {
        EXPECT_EQ(button->Caption(), "");
        EXPECT_EQ(button->TextFont().face, "Verdana");
    }
    EXPECT_EQ(palette.picCaption.TextFont().face, "Arial");
}

TEST_F(UtilitatiTest, ToolTipsSayWhatTheImagesDo) {
    const Utilitati& palette = Open();
    EXPECT_EQ(palette.imgRollup[0].ToolTip(), "Micsoreaza fereastra");
    EXPECT_EQ(palette.imgRollup[1].ToolTip(), "Mareste fereastra");
    EXPECT_EQ(palette.imgClose.ToolTip(), "Paraseste fereastra cu utilitare");
}

TEST_F(UtilitatiTest, OpensInTheTopLeftCornerBorderless) {
    const Utilitati& palette = Open();
    EXPECT_EQ(palette.Bounds().left, 0);
    EXPECT_EQ(palette.Bounds().top, 0);
    EXPECT_EQ(palette.Border(), forms::BorderStyle::Borderless);
}

TEST_F(UtilitatiTest, LoadingAlonePrintsTheCaption) {
    auto& palette = application.Default<Utilitati>();
    EXPECT_THAT(palette.picCaption.Printed(), testing::IsEmpty());
    palette.Load();
    EXPECT_THAT(palette.picCaption.Printed(),
                ElementsAre(forms::PictureBox::PrintedText{{7, 8}, "Utilitati"}));
}

TEST_F(UtilitatiTest, LoadingAddsSixtyTwipsToTheDesignedHeight) {
    auto& palette = application.Default<Utilitati>();
    const forms::Rect designed = palette.Bounds();
    palette.Load();
    EXPECT_EQ(palette.Bounds().height, designed.height + 60);
    EXPECT_EQ(palette.Bounds().width, designed.width);
}

TEST_F(UtilitatiTest, RollsUpToTheStripAndSixPixels) {
    Utilitati& palette = Open();
    const int width = palette.Bounds().width;
    ClickWithMouse(palette.imgRollup[0]);
    EXPECT_EQ(palette.Bounds().height, palette.picCaption.Bounds().height + 6 * 15);
    EXPECT_EQ(palette.Bounds().width, width);
    EXPECT_FALSE(palette.imgRollup[0].Visible());
    EXPECT_TRUE(palette.imgRollup[1].Visible());
}

TEST_F(UtilitatiTest, RolledUpOnlyTheStripIsInSightAtEveryResolution) {
    for (const int dpi : {96, 120, 144, 192}) {
        const auto pixels = [dpi](int twips) { return std::lround(twips * dpi / 1440.0); };
        desktop.twipsPerPixel = static_cast<int>(std::lround(1440.0 / dpi));
        Utilitati& palette = Open();
        ClickWithMouse(palette.imgRollup[0]);
        for (const forms::Control* control : palette.AllControls()) {
            const bool inStrip = control->Bounds().top == 0;
            EXPECT_EQ(pixels(control->Bounds().top) < pixels(palette.Bounds().height), inStrip)
                << control->QualifiedName() << " at " << dpi;
        }
        palette.Unload();
    }
}

TEST_F(UtilitatiTest, RestoringIsTwentyTwipsLowerThanLoading) {
    Utilitati& palette = Open();
    const forms::Rect loaded = palette.Bounds();
    ClickWithMouse(palette.imgRollup[0]);
    ClickWithMouse(palette.imgRollup[1]);
    EXPECT_EQ(palette.Bounds().height, loaded.height - 20);
    EXPECT_EQ(palette.Bounds().width, loaded.width);
    EXPECT_TRUE(palette.imgRollup[0].Visible());
}

TEST_F(UtilitatiTest, RestoreImageLiesExactlyUnderTheRollUpImage) {
    const Utilitati& palette = Open();
    EXPECT_EQ(palette.imgRollup[0].Bounds(), palette.imgRollup[1].Bounds());
    // The first declared lies on top.
    const auto& controls = palette.Controls();
    EXPECT_LT(std::ranges::find(controls, &palette.imgRollup[0]),
              std::ranges::find(controls, &palette.imgRollup[1]));
}

TEST_F(UtilitatiTest, ActivationPaintsTheStripAndLightsTheFirstCaption) {
    const Utilitati& palette = Open();
    EXPECT_EQ(desktop.CallsOf(palette).keptOnTop, 1);
    EXPECT_EQ(palette.picCaption.BackColor(), 0x004000U);
    EXPECT_EQ(palette.picCaption.ForeColor(), Green);
    EXPECT_THAT(palette.picCaption.Printed(),
                ElementsAre(forms::PictureBox::PrintedText{{7, 8}, "Utilitati"}));
    EXPECT_THAT(CaptionColors(palette), ElementsAre(Green, Red, Red, Red));
    EXPECT_EQ(FocusedControl(), "cmdAction(0)");
}

TEST_F(UtilitatiTest, DeactivationKeepsItOnTopAndTheHighlightWhereItIs) {
    Utilitati& palette = Open();
    keyboard.Press(key::Down);
    palette.picCaption.Paint(0, 0);
    desktop.ActivateByUser(nullptr);
    EXPECT_EQ(desktop.CallsOf(palette).keptOnTop, 2);
    EXPECT_EQ(palette.picCaption.BackColor(), 0x004000U);
    EXPECT_THAT(palette.picCaption.Printed(),
                ElementsAre(forms::PictureBox::PrintedText{{7, 8}, "Utilitati"}));
    EXPECT_THAT(CaptionColors(palette), ElementsAre(Red, Green, Red, Red));
    EXPECT_EQ(palette.ActiveControl(), &palette.cmdAction[1]);
}

TEST_F(UtilitatiTest, ApelLeavesTheFocusOnTheCalculatorAndTheHighlightOnTheNotes) {
    const Utilitati& palette = OpenAsApelDoes();
    EXPECT_EQ(FocusedControl(), "cmdAction(2)");
    EXPECT_THAT(CaptionColors(palette), ElementsAre(Green, Red, Red, Red));
}

TEST_F(UtilitatiTest, ComingBackLightsTheFirstCaptionAgain) {
    Utilitati& palette = OpenAsApelDoes();
    desktop.ActivateByUser(nullptr);
    desktop.ActivateByUser(&palette);
    EXPECT_EQ(FocusedControl(), "cmdAction(0)");
    EXPECT_THAT(CaptionColors(palette), ElementsAre(Green, Red, Red, Red));
}

TEST_F(UtilitatiTest, ButtonsOpenTheirWindowsByMouse) {
    Utilitati& palette = Open();
    for (int i = 0; i < 4; ++i)
        ClickWithMouse(palette.cmdAction[i]);
    EXPECT_THAT(launched, ElementsAre("Notes", "Agenda", "frmCalculator", "CursValutar"));
    EXPECT_TRUE(palette.IsLoaded());
}

TEST_F(UtilitatiTest, EnterOpensTheFocusedButton) {
    OpenAsApelDoes();
    keyboard.Press(key::Enter);
    EXPECT_THAT(launched, ElementsAre("frmCalculator"));
    EXPECT_EQ(FocusedControl(), "cmdAction(2)");
}

TEST_F(UtilitatiTest, AButtonWhoseWindowDoesNotExistDoesNothing) {
    shell::Application bare{desktop, [this] { return messages.CreateService(); }};
    auto& palette = bare.Default<Utilitati>();
    palette.Show();
    ClickWithMouse(palette.cmdAction[0]);
    EXPECT_TRUE(desktop.reports.empty());
    EXPECT_TRUE(palette.IsLoaded());
}

TEST_F(UtilitatiTest, UpAndDownWalkTheButtonsAround) {
    const Utilitati& palette = Open();
    keyboard.Press(key::Up);
    EXPECT_EQ(FocusedControl(), "cmdAction(3)");
    EXPECT_THAT(CaptionColors(palette), ElementsAre(Red, Red, Red, Green));
    keyboard.Press(key::Down);
    EXPECT_EQ(FocusedControl(), "cmdAction(0)");
    EXPECT_THAT(CaptionColors(palette), ElementsAre(Green, Red, Red, Red));
    keyboard.Press(key::Down);
    EXPECT_EQ(FocusedControl(), "cmdAction(1)");
    keyboard.Press(key::Up);
    EXPECT_EQ(FocusedControl(), "cmdAction(0)");
}

TEST_F(UtilitatiTest, EveryKeyOnAButtonMovesThePointerAHundredPixelsToTheLeft) {
    Open();
    int x = 900;
    desktop.cursor = {x, 77};
    for (const int keyCode : {key::Down, key::Up, static_cast<int>('A'), key::Space, key::Tab, key::Enter}) {
        keyboard.Press(keyCode);
        x -= 100;
        EXPECT_EQ(desktop.cursor, (forms::PixelPoint{x, 77})) << "key " << keyCode;
    }
    keyboard.Press(key::Escape);
    EXPECT_EQ(desktop.cursor, (forms::PixelPoint{x - 100, 77}));
}

TEST_F(UtilitatiTest, OtherKeysAreSwallowedAndGoToTheFirstButton) {
    const Utilitati& palette = OpenAsApelDoes();
    for (const int keyCode :
         {static_cast<int>('Q'), key::Space, key::Tab, key::Right, key::Left, key::Home}) {
        palette.FindControl("cmdAction(3)")->SetFocus();
        keyboard.Press(keyCode);
        EXPECT_EQ(FocusedControl(), "cmdAction(0)") << "key " << keyCode;
        EXPECT_THAT(CaptionColors(palette), ElementsAre(Green, Red, Red, Red));
    }
    EXPECT_TRUE(launched.empty());
}

TEST_F(UtilitatiTest, ASwallowedKeyDoesNotClickTheFirstButton) {
    Open();
    keyboard.Press(key::Space);
    EXPECT_TRUE(launched.empty());
}

TEST_F(UtilitatiTest, ThePointerConfirmsOnlyTheCaptionThatIsLit) {
    Utilitati& palette = OpenAsApelDoes();
    palette.cmdAction[0].HandleMouseMove({MouseButton::None, {10, 10}, {}});
    EXPECT_EQ(FocusedControl(), "cmdAction(0)");
    palette.cmdAction[1].HandleMouseMove({MouseButton::None, {10, 10}, {}});
    EXPECT_EQ(FocusedControl(), "cmdAction(0)");
    EXPECT_THAT(CaptionColors(palette), ElementsAre(Green, Red, Red, Red));
}

TEST_F(UtilitatiTest, ThePointerLightsACaptionOfAnyColorButRed) {
    Utilitati& palette = Open();
    palette.Label3.SetForeColor(0x123456);
    palette.cmdAction[2].HandleMouseMove({MouseButton::None, {10, 10}, {}});
    EXPECT_EQ(FocusedControl(), "cmdAction(2)");
    EXPECT_THAT(CaptionColors(palette), ElementsAre(Red, Red, Green, Red));
}

TEST_F(UtilitatiTest, ThePointerTakesNoFocusFromAnotherWindow) {
    Utilitati& palette = Open();
    const forms::Form& other = OpenPlain("CursValutar");
    palette.cmdAction[0].HandleMouseMove({MouseButton::None, {10, 10}, {}});
    EXPECT_EQ(desktop.ActiveForm(), &other);
    EXPECT_FALSE(palette.IsActive());
}

TEST_F(UtilitatiTest, ThePointerWithAButtonHeldChangesNothing) {
    Utilitati& palette = OpenAsApelDoes();
    palette.cmdAction[0].HandleMouseMove({MouseButton::Left, {10, 10}, {}});
    EXPECT_EQ(FocusedControl(), "cmdAction(2)");
}

TEST_F(UtilitatiTest, TheStripDragsTheWindowWithTheLeftButtonAlone) {
    Utilitati& palette = Open();
    palette.picCaption.HandleMouseMove({MouseButton::None, {10, 10}, {}});
    palette.picCaption.HandleMouseMove({MouseButton::Right, {10, 10}, {}});
    EXPECT_EQ(desktop.CallsOf(palette).draggedByCaption, 0);
    palette.picCaption.HandleMouseMove({MouseButton::Left, {10, 10}, {}});
    EXPECT_EQ(desktop.CallsOf(palette).draggedByCaption, 1);
}

TEST_F(UtilitatiTest, AnyMouseButtonReleasedOnTheCloseImageCloses) {
    for (const MouseButton button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle}) {
        ClickWithMouse(Open().imgClose, button);
        EXPECT_EQ(application.Loaded<Utilitati>(), nullptr);
    }
    EXPECT_EQ(caller->raised, 3);
}

TEST_F(UtilitatiTest, ClosingUnloadsTheWindowsInOrderAndThenTellsTheHost) {
    Utilitati& palette = Open();
    for (const char* name : {"frmCalculator", "Notes", "CursValutarDetaliu", "CursValutar", "CereMoneda",
                             "AlegeMoneda", "Agenda", "EvolutieCurs"}) {
        OpenPlain(name);
    }
    caller->whenRaised = [this] { unloads.emplace_back("Iesire"); };
    ClickWithMouse(palette.imgClose);
    EXPECT_THAT(unloads, ElementsAre("Agenda", "AlegeMoneda", "CereMoneda", "CursValutar",
                                     "CursValutarDetaliu", "Notes", "frmCalculator", "Iesire"));
    EXPECT_EQ(caller->raised, 1);
    EXPECT_EQ(desktop.Forms().size(), 1U) << "the evolution window is not in the list";
}

TEST_F(UtilitatiTest, EscapeLeavesTheCalculatorOpen) {
    Utilitati& palette = Open();
    for (const char* name : {"Agenda", "AlegeMoneda", "frmCalculator", "Notes", "CursValutar"})
        OpenPlain(name);
    desktop.ActivateByUser(&palette);
    keyboard.Press(key::Escape);
    ASSERT_EQ(desktop.Forms().size(), 1U);
    EXPECT_EQ(desktop.Forms().front()->Name(), "frmCalculator");
    EXPECT_EQ(caller->raised, 1);
}

TEST_F(UtilitatiTest, EscapeClosesEveryWindowOfAListedName) {
    Utilitati& palette = Open();
    OpenPlain("Altceva");
    for (const char* name : {"Agenda", "AlegeMoneda", "Calculator", "Notes", "CursValutar"}) {
        OpenPlain(name);
        OpenPlain(name);
    }
    desktop.ActivateByUser(&palette);
    keyboard.Press(key::Escape);
    ASSERT_EQ(desktop.Forms().size(), 1U);
    EXPECT_EQ(desktop.Forms().front()->Name(), "Altceva");
}

TEST_F(UtilitatiTest, EscapeDuringAnotherWindowsUnloadEnds) {
    Utilitati& palette = Open();
    auto& notes = OpenPlain("Notes");
    // The host pumps messages while it handles the exit event, and the user presses Escape meanwhile.
    caller->whenRaised = [&] {
        caller->whenRaised = nullptr;
        desktop.ActivateByUser(&palette);
        keyboard.Press(key::Escape);
    };
    application.context.RaiseIesire();
    EXPECT_FALSE(notes.IsLoaded());
    EXPECT_EQ(application.Loaded<Utilitati>(), nullptr);
}

TEST_F(UtilitatiTest, ASecondOpeningShowsTheSamePalette) {
    const Utilitati* first = &OpenAsApelDoes();
    const Utilitati* second = &OpenAsApelDoes();
    EXPECT_EQ(first, second);
    EXPECT_EQ(desktop.Forms().size(), 1U);
}

TEST_F(UtilitatiTest, APaletteOpenedAfterClosingIsANewOne) {
    Open().Unload();
    const Utilitati& palette = Open();
    EXPECT_TRUE(palette.Visible());
    EXPECT_EQ(desktop.Forms().size(), 1U);
}

}  // namespace
}  // namespace tavrin::tests
