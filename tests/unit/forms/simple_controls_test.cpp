// Labels, buttons, frames, pictures and decorations: what they show, and what they do with a click or a key.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/controls/command_button.h"
#include "forms/controls/decoration.h"
#include "forms/controls/frame.h"
#include "forms/controls/image.h"
#include "forms/controls/label.h"
#include "forms/controls/picture_box.h"
#include "forms/model/form.h"
#include "support/counting_peer.h"
#include "support/headless_desktop.h"
#include "support/headless_keyboard.h"
#include "support/recording_surface.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
namespace scheme = forms::scheme;
using forms::Align;
using forms::Rect;
using forms::Role;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Rect ButtonArea{0, 0, 1800, 420};

class SimpleForm : public forms::Form {
  public:
    explicit SimpleForm(forms::Desktop& desktop)
        : Form(desktop, "Simple", "Simple", forms::BorderStyle::FixedDialog) {}

    forms::CommandButton button{*this, "button", "Adauga", ButtonArea};
    forms::CommandButton other{*this, "other", "Iesire", ButtonArea};
    forms::Label label{*this, "label", "De La Data", {0, 0, 1500, 240}};
    forms::PictureBox picture{*this, "picture", {0, 0, 3000, 330}};
    forms::Image image{*this, "image", {0, 0, 240, 240}};
    forms::Frame frame{*this, "frame", {600, 900, 3000, 2000}};
    forms::Shape shape{frame, "shape", {100, 200, 500, 400}};
    forms::Line level{frame, "level", {50, 700, 900, 30}};
    forms::Line upright{frame, "upright", {50, 700, 30, 900}};
    forms::CommandButton inside{frame, "inside", "Accepta", {0, 0, 900, 420}};
};

class SimpleControlsTest : public testing::Test {
  protected:
    SimpleControlsTest() { form->Show(); }
    ~SimpleControlsTest() override { desktop.UnloadAll(); }

    static RecordingSurface Drawing(const forms::Control& control) {
        RecordingSurface surface;
        control.Draw(surface);
        return surface;
    }

    HeadlessDesktop desktop;
    HeadlessKeyboard keyboard{desktop};
    std::shared_ptr<SimpleForm> form = std::make_shared<SimpleForm>(desktop);
    forms::CommandButton& button = form->button;
    int clicks = 0;
};

// Buttons.

TEST_F(SimpleControlsTest, ACaptionStandsInTheMiddleOfItsButton) {
    const RecordingSurface surface = Drawing(button);
    const Drawn* caption = surface.FindText("Adauga");
    ASSERT_NE(caption, nullptr);
    EXPECT_EQ(caption->style.align, Align::Center);
    EXPECT_EQ(caption->area.left + caption->area.Right(), ButtonArea.width);
    EXPECT_EQ(caption->area.top + caption->area.Bottom(), ButtonArea.height);
}

TEST_F(SimpleControlsTest, APictureStandsToTheLeftOfTheCaption) {
    button.SetPicture(forms::Icon::Add);
    button.SetCaption("  Adauga Moneda");
    const RecordingSurface surface = Drawing(button);
    EXPECT_EQ(button.Caption(), "  Adauga Moneda");
    const Drawn* caption = surface.FindText("Adauga Moneda");
    ASSERT_NE(caption, nullptr);
    const auto strokes = surface.AllOf(Drawing::Polyline);
    ASSERT_FALSE(strokes.empty());
    for (const Drawn& stroke : strokes) {
        EXPECT_LE(stroke.area.Right(), caption->area.left);
        EXPECT_GE(stroke.area.left, 0);
    }
}

TEST_F(SimpleControlsTest, WithoutAPictureLeadingBlanksStay) {
    button.SetCaption("  Adauga");
    EXPECT_THAT(Drawing(button).Texts(), ElementsAre("  Adauga"));
    EXPECT_EQ(button.Accessible().name, "Adauga");
}

TEST_F(SimpleControlsTest, APictureAloneStandsInTheMiddle) {
    button.SetCaption("");
    button.SetPicture(forms::Icon::Close);
    const auto strokes = Drawing(button).AllOf(Drawing::Polyline);
    ASSERT_EQ(strokes.size(), 2U);
    for (const Drawn& stroke : strokes) {
        EXPECT_NEAR(stroke.area.left + stroke.area.Right(), ButtonArea.width, 30);
        EXPECT_NEAR(stroke.area.top + stroke.area.Bottom(), ButtonArea.height, 30);
    }
}

TEST_F(SimpleControlsTest, TheAcceleratorIsUnderlinedWhereItFirstStands) {
    button.SetAccelerator(U'D');
    EXPECT_EQ(Drawing(button).FindText("Adauga")->style.accelerator, 1);
    button.SetAccelerator(U'x');
    EXPECT_EQ(Drawing(button).FindText("Adauga")->style.accelerator, -1);
    button.SetAccelerator(0);
    EXPECT_EQ(Drawing(button).FindText("Adauga")->style.accelerator, -1);
}

TEST_F(SimpleControlsTest, TheFocusedButtonHasABrightFrameAndALighterFace) {
    ASSERT_TRUE(button.HasFocus());
    const RecordingSurface focused = Drawing(button);
    EXPECT_TRUE(focused.HasFrame(ButtonArea, scheme::Focus));
    EXPECT_TRUE(focused.IsFilled(ButtonArea, scheme::FaceHot));
    const RecordingSurface plain = Drawing(form->other);
    EXPECT_FALSE(plain.HasFrame(ButtonArea, scheme::Focus));
    EXPECT_TRUE(plain.HasFrame(ButtonArea, scheme::Border));
    EXPECT_TRUE(plain.IsFilled(ButtonArea, scheme::Face));
}

TEST_F(SimpleControlsTest, FocusFramesGrowWithTheResolution) {
    for (const auto& [pixelSize, pixels] : {std::pair{15.0, 2}, {12.0, 3}, {10.0, 3}, {7.5, 4}}) {
        RecordingSurface surface(pixelSize);
        button.Draw(surface);
        ASSERT_EQ(surface.AllOf(Drawing::Frame).size(), 1U);
        EXPECT_EQ(surface.AllOf(Drawing::Frame).front().pixels, pixels) << pixelSize;
    }
}

TEST_F(SimpleControlsTest, TheMouseLightsAndPressesAButton) {
    forms::CommandButton& other = form->other;
    other.HandleMouseMove({forms::MouseButton::None, {100, 100}, {}});
    EXPECT_TRUE(Drawing(other).IsFilled(ButtonArea, scheme::FaceHot));
    other.HandleMouseDown({forms::MouseButton::Left, {100, 100}, {}});
    EXPECT_TRUE(Drawing(other).IsFilled(ButtonArea, scheme::FacePressed));
    other.HandleMouseUp({forms::MouseButton::Left, {100, 100}, {}});
    other.HandleMouseLeave();
    EXPECT_FALSE(Drawing(other).IsFilled(ButtonArea, scheme::FacePressed));
}

TEST_F(SimpleControlsTest, ADisabledButtonIsGreyAndDeaf) {
    forms::CommandButton& other = form->other;
    other.onClick = [this] { ++clicks; };
    other.SetEnabled(false);
    ClickWithMouse(other);
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(Drawing(other).FindText("Iesire")->color, scheme::TextDisabled);
    EXPECT_TRUE(other.Accessible().unavailable);
}

TEST_F(SimpleControlsTest, EnterAndSpaceClick) {
    button.onClick = [this] { ++clicks; };
    keyboard.Press(key::Enter);
    keyboard.Press(key::Space);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(form->HandleKeyDown(key::Space, {.alt = true}), forms::KeyOutcome::Default);
    EXPECT_EQ(clicks, 2);
}

TEST_F(SimpleControlsTest, ANameOfItsOwnSpeaksForAPicture) {
    button.SetCaption("");
    button.SetToolTip("Paraseste");
    EXPECT_EQ(button.Accessible().name, "Paraseste");
    button.SetAccessibleName("Iesire");
    EXPECT_EQ(button.Accessible().name, "Iesire");
    EXPECT_EQ(button.Accessible().role, Role::PushButton);
}

// Labels.

TEST_F(SimpleControlsTest, ALabelFillsItsAreaWithItsCaption) {
    form->label.SetForeColor(forms::Red);
    form->label.SetAlign(Align::Right);
    form->label.SetWrap(true);
    const RecordingSurface surface = Drawing(form->label);
    const Drawn* caption = surface.FindText("De La Data");
    ASSERT_NE(caption, nullptr);
    EXPECT_EQ(caption->area, (Rect{0, 0, 1500, 240}));
    EXPECT_EQ(caption->color, forms::Red);
    EXPECT_EQ(caption->style.align, Align::Right);
    EXPECT_TRUE(caption->style.wrap);
    EXPECT_FALSE(form->label.IsFocusable());
    EXPECT_EQ(form->label.Accessible().name, "De La Data");
}

TEST_F(SimpleControlsTest, LabelsRepaintOnlyForADifferentCaption) {
    const CountingPeer* peer = CountingPeer::Give(form->label);
    form->label.SetCaption("De La Data");
    EXPECT_EQ(peer->repaints, 0);
    form->label.SetCaption("La Data");
    EXPECT_EQ(peer->repaints, 1);
}

// Pictures.

TEST_F(SimpleControlsTest, TextsArePrintedWhereTheyWerePut) {
    form->picture.Paint(0x004000, forms::Green);
    form->picture.PrintAt({7, 8}, "Utilitati");
    const RecordingSurface surface = Drawing(form->picture);
    EXPECT_TRUE(surface.IsFilled({0, 0, 3000, 330}, 0x004000));
    const Drawn* text = surface.FindText("Utilitati");
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->area.left, 7);
    EXPECT_EQ(text->area.top, 8);
    EXPECT_EQ(text->color, forms::Green);
    EXPECT_EQ(form->picture.Accessible().name, "Utilitati");
}

TEST_F(SimpleControlsTest, PaintingWipesWhatWasPrinted) {
    form->picture.PrintAt({7, 8}, "Utilitati");
    form->picture.Paint(0x004000, forms::Green);
    EXPECT_THAT(form->picture.Printed(), IsEmpty());
    EXPECT_THAT(Drawing(form->picture).Texts(), IsEmpty());
}

TEST_F(SimpleControlsTest, AnImageThatDoesNothingIsAGraphic) {
    form->image.SetPicture(forms::Icon::Close);
    EXPECT_EQ(form->image.Accessible().role, Role::Graphic);
    form->image.onMouseUp = [](const forms::MouseInput&) {};
    form->image.SetToolTip("Paraseste fereastra cu utilitare");
    EXPECT_EQ(form->image.Accessible().role, Role::PushButton);
    EXPECT_EQ(form->image.Accessible().name, "Paraseste fereastra cu utilitare");
    EXPECT_FALSE(form->image.IsFocusable());
    form->image.HandleMouseMove({forms::MouseButton::None, {100, 100}, {}});
    EXPECT_TRUE(Drawing(form->image).IsFilled({0, 0, 240, 240}, scheme::FaceHot));
}

// Frames and decorations.

TEST_F(SimpleControlsTest, AFrameHidesAndDisablesWhatIsInIt) {
    form->frame.SetEnabled(false);
    EXPECT_FALSE(form->inside.CanTakeFocus());
    EXPECT_TRUE(form->inside.Enabled());
    EXPECT_EQ(Drawing(form->inside).FindText("Accepta")->color, scheme::TextDisabled);
    form->frame.SetEnabled(true);
    form->frame.SetVisible(false);
    EXPECT_FALSE(form->inside.IsEffectivelyVisible());
}

TEST_F(SimpleControlsTest, AFramesBorderCanBeLeftOut) {
    EXPECT_TRUE(Drawing(form->frame).HasFrame({0, 0, 3000, 2000}, scheme::GridLine));
    form->frame.SetBordered(false);
    EXPECT_FALSE(Drawing(form->frame).HasFrame({0, 0, 3000, 2000}, scheme::GridLine));
    EXPECT_EQ(form->frame.Accessible().role, Role::Grouping);
}

TEST_F(SimpleControlsTest, DecorationsAreDrawnAtTheirPlacesByTheirContainer) {
    form->shape.SetBackColor(forms::FocusGrey);
    RecordingSurface surface;
    DrawDecorations(form->frame, surface);
    EXPECT_TRUE(surface.IsFilled({100, 200, 500, 400}, forms::FocusGrey));
    EXPECT_TRUE(surface.IsFilled({50, 707, 900, 15}, scheme::Border));
    EXPECT_TRUE(surface.IsFilled({57, 700, 15, 900}, scheme::Border));
    EXPECT_THAT(surface.Texts(), IsEmpty());
}

TEST_F(SimpleControlsTest, HiddenDecorationsAreLeftOut) {
    form->shape.SetVisible(false);
    form->level.SetVisible(false);
    form->upright.SetVisible(false);
    RecordingSurface surface;
    DrawDecorations(form->frame, surface);
    EXPECT_THAT(surface.All(), IsEmpty());
}

}  // namespace
}  // namespace tavrin::tests
