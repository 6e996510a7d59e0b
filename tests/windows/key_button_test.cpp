// The calculator's keys as they are seen: by kind, by what the mouse does to them, by the focus.

#include "calculator/key_button.h"

#include <gmock/gmock.h>

#include <map>
#include <vector>

#include "calculator_fixture.h"
#include "support/recording_surface.h"

namespace tavrin::tests {
namespace {

using calculator::FrmCalculator;
using calculator::KeyButton;
using forms::Color;
using forms::MouseButton;
using testing::Each;
using testing::Eq;

constexpr forms::MouseInput Pointer{MouseButton::None, {100, 100}, {}};
constexpr forms::MouseInput Press{MouseButton::Left, {100, 100}, {}};

class KeyButtonTest : public CalculatorTest {
  protected:
    /// Keys that look alike, one group after the other.
    static std::vector<std::vector<KeyButton*>> Kinds(FrmCalculator& window) {
        std::vector<KeyButton*> digits = {&window.Decimal};
        for (const auto& button : window.Number)
            digits.push_back(button.get());
        std::vector<KeyButton*> operators;
        for (const int index : {0, 1, 2, 3, 5, 6})
            operators.push_back(&window.Operator[index]);
        return {digits,
                operators,
                {&window.Operator[4]},
                {&window.Cancel, &window.CancelEntry},
                {&window.cmdMC, &window.cmdMR, &window.cmdMPlus, &window.cmdMMinus}};
    }

    static Color FaceOf(const KeyButton& button) {
        RecordingSurface surface;
        button.Draw(surface);
        return surface.AllOf(Drawing::Rectangle).front().color;
    }

    static forms::Rect CaptionPlaceOf(const KeyButton& button) {
        RecordingSurface surface;
        button.Draw(surface);
        return surface.FindText(button.Caption())->area;
    }

    static Color CaptionColorOf(const KeyButton& button) {
        RecordingSurface surface;
        button.Draw(surface);
        return surface.FindText(button.Caption())->color;
    }

    static int Brightness(Color color) {
        return static_cast<int>((color & 0xFF) + (color >> 8 & 0xFF) + (color >> 16 & 0xFF));
    }
};

TEST_F(KeyButtonTest, KeysOfAKindLookAlikeAndKindsDiffer) {
    FrmCalculator& window = Open();
    window.cmdVal.SetFocus();
    std::map<Color, std::size_t> kindOfFace;
    const auto kinds = Kinds(window);
    for (std::size_t kind = 0; kind < kinds.size(); ++kind) {
        const KeyButton& first = *kinds[kind].front();
        EXPECT_TRUE(kindOfFace.emplace(FaceOf(first), kind).second) << first.QualifiedName();
        for (const KeyButton* button : kinds[kind]) {
            EXPECT_EQ(FaceOf(*button), FaceOf(first)) << button->QualifiedName();
            EXPECT_EQ(button->ForeColor(), first.ForeColor()) << button->QualifiedName();
            EXPECT_EQ(button->TextFont(), first.TextFont()) << button->QualifiedName();
        }
    }
}

TEST_F(KeyButtonTest, AllKeysHaveOneWeight) {
    FrmCalculator& window = Open();
    for (const auto& kind : Kinds(window)) {
        for (const KeyButton* button : kind)
            EXPECT_EQ(button->TextFont(), (forms::Font{.face = "Arial", .points = 14, .bold = true}));
    }
}

TEST_F(KeyButtonTest, AKeyLightsUpUnderTheMouseAndChangesItsColoursWhileItIsHeldDown) {
    FrmCalculator& window = Open();
    window.cmdVal.SetFocus();
    for (const auto& kind : Kinds(window)) {
        KeyButton& button = *kind.front();
        const Color resting = FaceOf(button);
        button.HandleMouseMove(Pointer);
        EXPECT_GT(Brightness(FaceOf(button)), Brightness(resting)) << button.QualifiedName();
        button.HandleMouseDown(Press);
        EXPECT_EQ(FaceOf(button), button.ForeColor()) << button.QualifiedName();
        EXPECT_EQ(CaptionColorOf(button), forms::Black) << button.QualifiedName();
        button.HandleMouseUp(Press);
        button.HandleMouseLeave();
        window.cmdVal.SetFocus();
        EXPECT_EQ(FaceOf(button), resting) << button.QualifiedName();
    }
}

TEST_F(KeyButtonTest, AKeyThatTheKeyboardHoldsIsSeenToBeHeld) {
    FrmCalculator& window = Open();
    const auto expectOnly = [&](const KeyButton* held) {
        for (const auto& kind : Kinds(window)) {
            for (const KeyButton* button : kind)
                EXPECT_EQ(FaceOf(*button) == button->ForeColor(), button == held) << button->QualifiedName();
        }
    };
    keyboard.Type("7");
    expectOnly(&window.Number[7]);
    keyboard.Type("7");
    expectOnly(&window.Number[7]);
    keyboard.Type("+");
    expectOnly(&window.Operator[1]);
    keyboard.Release();
    expectOnly(nullptr);
    keyboard.Press(forms::key::Enter);
    expectOnly(&window.Operator[4]);
    keyboard.Release();
    window.cmdMR.SetFocus();
    keyboard.Press(forms::key::Enter);
    expectOnly(&window.cmdMR);
    desktop.ActivateByUser(nullptr);
    expectOnly(nullptr);
}

TEST_F(KeyButtonTest, TheDisplaysDigitsAreAsHighAsTheDisplaysAllow) {
    FrmCalculator& window = Open();
    for (const forms::NumericDisplay* display : {&window.ValLei, &window.ValValuta}) {
        RecordingSurface surface;
        display->Draw(surface);
        const int height = surface.MeasureText("0", surface.FindText(display->Text())->style.font).height;
        EXPECT_LE(height, display->Bounds().height);
        EXPECT_GT(height, display->Bounds().height * 9 / 10);
    }
}

TEST_F(KeyButtonTest, TheFocusLightsAKeyLikeTheMouse) {
    FrmCalculator& window = Open();
    window.cmdVal.SetFocus();
    KeyButton& button = window.Number[5];
    button.HandleMouseMove(Pointer);
    const Color lit = FaceOf(button);
    button.HandleMouseLeave();
    button.SetFocus();
    EXPECT_EQ(FaceOf(button), lit);
}

TEST_F(KeyButtonTest, TheCaptionSinksOnlyWhileTheKeyIsHeldUnderTheMouse) {
    KeyButton& button = Open().Number[5];
    const forms::Rect resting = CaptionPlaceOf(button);
    button.HandleMouseMove(Pointer);
    EXPECT_EQ(CaptionPlaceOf(button), resting);
    button.HandleMouseDown(Press);
    EXPECT_EQ(CaptionPlaceOf(button).top, resting.top + 30);
    button.HandleMouseMove({MouseButton::Left, {100, 5000}, {}});
    EXPECT_EQ(CaptionPlaceOf(button), resting) << "dragged off";
}

TEST_F(KeyButtonTest, ADisabledKeyFadesIntoTheWindow) {
    FrmCalculator& window = Open();
    for (const auto& kind : Kinds(window)) {
        KeyButton& button = *kind.front();
        button.SetEnabled(false);
        EXPECT_EQ(FaceOf(button), forms::scheme::Window) << button.QualifiedName();
    }
}

}  // namespace
}  // namespace tavrin::tests
