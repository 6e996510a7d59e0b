// What all controls have in common: they stay in their bounds and cut no text, at every resolution.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/controls/combo_box.h"
#include "forms/controls/command_button.h"
#include "forms/controls/date_picker.h"
#include "forms/controls/decoration.h"
#include "forms/controls/frame.h"
#include "forms/controls/image.h"
#include "forms/controls/label.h"
#include "forms/controls/look.h"
#include "forms/controls/picture_box.h"
#include "forms/controls/text_box.h"
#include "forms/model/form.h"
#include "support/headless_desktop.h"
#include "support/recording_surface.h"

namespace tavrin::tests {
namespace {

using testing::IsEmpty;

class GalleryForm : public forms::Form {
  public:
    explicit GalleryForm(forms::Desktop& desktop)
        : Form(desktop, "Gallery", "Gallery", forms::BorderStyle::FixedDialog) {
        pictured.SetPicture(forms::Icon::AddCurrency);
        drawn.SetPicture(forms::Icon::Calculator);
        image.SetPicture(forms::Icon::Close);
        list.AddItem("Toate Perioadele");
        list.SetListIndex(0);
        strip.PrintAt({7, 8}, "Utilitati");
        date.SetDate({37761});
        named.SetDate({37761});
    }

    forms::Label label{*this, "label", "De La Data", {0, 0, 1200, 240}};
    forms::CommandButton plain{*this, "plain", "Filtreaza", {7, 11, 1290, 375}};
    forms::CommandButton pictured{*this, "pictured", "  Adauga Moneda", {1, 2, 2100, 420}};
    forms::CommandButton drawn{*this, "drawn", "", {0, 0, 600, 600}};
    forms::Image image{*this, "image", {0, 0, 240, 240}};
    forms::ComboBox list{*this, "list", forms::ComboStyle::DropDownList, {0, 0, 2100, 330}};
    forms::ComboBox field{*this, "field", forms::ComboStyle::DropDown, {0, 0, 2100, 330}};
    forms::DatePicker date{*this, "date", "dd/MM/yyyy", {0, 0, 1560, 330}};
    forms::DatePicker named{*this, "named", "dd/MMM/yy", {0, 0, 1560, 330}};
    forms::PictureBox strip{*this, "strip", {0, 0, 3000, 330}};
    forms::Frame frame{*this, "frame", {0, 0, 3000, 3000}};
    forms::Shape shape{*this, "shape", {0, 0, 300, 300}};
    forms::Line line{*this, "line", {0, 0, 3000, 15}};
};

class LookTest : public testing::TestWithParam<double> {
  protected:
    LookTest() { form->Show(); }
    ~LookTest() override { desktop.UnloadAll(); }

    /// Draws every control in each of its states.
    template <class Check>
    void ForEveryDrawing(Check check) {
        for (forms::Control* control : form->AllControls()) {
            for (const bool enabled : {true, false}) {
                control->SetEnabled(enabled);
                control->SetFocus();
                RecordingSurface surface(GetParam());
                control->Draw(surface);
                check(*control, surface);
            }
            control->SetEnabled(true);
        }
    }

    HeadlessDesktop desktop;
    std::shared_ptr<GalleryForm> form = std::make_shared<GalleryForm>(desktop);
};

TEST_P(LookTest, ControlsStayInTheirBounds) {
    ForEveryDrawing([](const forms::Control& control, const RecordingSurface& surface) {
        EXPECT_FALSE(surface.All().empty()) << control.Name();
        const forms::Rect bounds{0, 0, control.Bounds().width, control.Bounds().height};
        EXPECT_THAT(surface.Outside(bounds), IsEmpty()) << control.Name();
        EXPECT_TRUE(surface.ClipsAreBalanced()) << control.Name();
    });
}

TEST_P(LookTest, NoTextIsCut) {
    ForEveryDrawing([](const forms::Control& control, RecordingSurface& surface) {
        EXPECT_THAT(surface.CutTexts(), IsEmpty()) << control.Name();
    });
}

TEST_P(LookTest, ControlsWithoutRoomDrawWithoutTrouble) {
    for (forms::Control* control : form->AllControls()) {
        for (const forms::Size size : {forms::Size{0, 0}, {1, 1}, {40, 40}, {100, 40}}) {
            control->SetBounds({0, 0, size.width, size.height});
            RecordingSurface surface(GetParam());
            control->Draw(surface);
            EXPECT_TRUE(surface.ClipsAreBalanced()) << control->Name();
        }
    }
}

TEST(EdgeTest, ALockedTextHasALineInsteadOfAFrame) {
    HeadlessDesktop desktop;
    const auto form = std::make_shared<GalleryForm>(desktop);
    forms::TextBox text(*form, "text");
    using forms::look::EdgeOf;
    namespace scheme = forms::scheme;
    EXPECT_EQ(EdgeOf(text, false), (forms::look::Edge{scheme::Border, 15, false}));
    EXPECT_EQ(EdgeOf(text, true), (forms::look::Edge{scheme::Focus, 30, false}));
    text.SetLocked(true);
    EXPECT_EQ(EdgeOf(text, false), (forms::look::Edge{scheme::Border, 15, true}));
    EXPECT_EQ(EdgeOf(text, true), (forms::look::Edge{scheme::Focus, 30, false})) << "the focus is seen";
    text.SetEnabled(false);
    EXPECT_EQ(EdgeOf(text, false), (forms::look::Edge{scheme::GridLine, 15, true}));
    EXPECT_FALSE(EdgeOf(form->plain, false).isLine);
}

INSTANTIATE_TEST_SUITE_P(Resolutions, LookTest, testing::Values(15.0, 12.0, 10.0, 7.5));

}  // namespace
}  // namespace tavrin::tests
