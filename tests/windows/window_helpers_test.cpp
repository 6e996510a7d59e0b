#include "shell/window_helpers.h"

#include "forms/controls/command_button.h"
#include "forms/controls/frame.h"
#include "forms/controls/grid.h"
#include "forms/controls/label.h"
#include "forms/controls/text_box.h"
#include "support/window_test.h"

namespace tavrin::tests {
namespace {

class DressedWindow : public forms::Form {
  public:
    explicit DressedWindow(forms::Desktop& desktop)
        : Form(desktop, "Dressed", "Dressed", forms::BorderStyle::Borderless) {
        for (Control* control : std::initializer_list<Control*>{&inside, &outside, &label, &button, &grid}) {
            control->SetBackColor(0x111111);
            control->SetForeColor(0x222222);
        }
        inside.SetBordered(false);
    }
    using Control = forms::Control;

    forms::Frame frame{*this, "frame"};
    forms::TextBox inside{frame, "inside"};
    forms::TextBox outside{*this, "outside"};
    forms::Label label{*this, "label"};
    forms::CommandButton button{*this, "button"};
    forms::Grid grid{*this, "grid"};
};

class WindowHelpersTest : public WindowTest {
  protected:
    DressedWindow window{desktop};
};

TEST_F(WindowHelpersTest, DarkSchemeDressesTheWindowAndItsTextBoxesAlone) {
    shell::ApplyDarkScheme(window, 1);
    EXPECT_EQ(window.BackColor(), 0x000000U);
    for (const forms::TextBox* textBox : {&window.inside, &window.outside}) {
        EXPECT_TRUE(textBox->Bordered());
        EXPECT_EQ(textBox->BackColor(), 0x000000U);
        EXPECT_EQ(textBox->ForeColor(), 0x00FF00U);
    }
    for (const forms::Control* control :
         std::initializer_list<const forms::Control*>{&window.label, &window.button, &window.grid}) {
        EXPECT_EQ(control->BackColor(), 0x111111U) << control->Name();
        EXPECT_EQ(control->ForeColor(), 0x222222U) << control->Name();
    }
}

TEST_F(WindowHelpersTest, AnyOtherModeLeavesTheWindowAlone) {
    const forms::Color before = window.BackColor();
    for (const auto mode : std::initializer_list<std::uint8_t>{0, 2, 255})
        shell::ApplyDarkScheme(window, mode);
    EXPECT_EQ(window.BackColor(), before);
    EXPECT_EQ(window.inside.BackColor(), 0x111111U);
    EXPECT_EQ(window.inside.ForeColor(), 0x222222U);
    EXPECT_FALSE(window.inside.Bordered());
}

TEST_F(WindowHelpersTest, MoveByCaptionHandsTheWindowToThePlatform) {
    auto shown = std::make_shared<DressedWindow>(desktop);
    shown->Show();
    shell::MoveByCaption(*shown);
    EXPECT_EQ(desktop.CallsOf(*shown).draggedByCaption, 1);
}

}  // namespace
}  // namespace tavrin::tests
