// What holds for the layout of every window, whatever its controls' places are.

#include <gmock/gmock.h>

#include <set>
#include <string>

#include "forms/controls/command_button.h"
#include "windows/every_window.h"

namespace tavrin::tests {
namespace {

using forms::Rect;

constexpr int TwipsPerPixel = 15;

class WindowLayoutTest : public EveryWindowTest {
  protected:
    static void ExpectWholePixels(const forms::Form& form) {
        for (const forms::Control* control : form.AllControls()) {
            const Rect& bounds = control->Bounds();
            for (const int length : {bounds.left, bounds.top, bounds.width, bounds.height})
                EXPECT_EQ(length % TwipsPerPixel, 0) << form.Name() << "." << control->QualifiedName();
        }
    }
};

TEST_F(WindowLayoutTest, EveryControlBeginsAndEndsOnAWholePixel) {
    ForEachWindow(ExpectWholePixels);
}

/// The address book's buttons stand among fields and are no part of it.
TEST_F(WindowLayoutTest, SmallWindowsEndWithTheSameTwoButtons) {
    constexpr int Margin = 120;
    std::set<std::string> seen;
    ForEachWindow([&](forms::Form& form) {
        const auto* accept = dynamic_cast<forms::CommandButton*>(form.FindControl("cmdAction(0)"));
        const auto* cancel = dynamic_cast<forms::CommandButton*>(form.FindControl("cmdAction(1)"));
        if (accept == nullptr || accept->Caption() != "Accepta" || form.Name() == "Agenda") return;
        ASSERT_NE(cancel, nullptr);
        EXPECT_EQ(cancel->Caption(), "Renunta");
        seen.insert(form.Name());
        const Rect& one = accept->Bounds();
        const Rect& other = cancel->Bounds();
        EXPECT_EQ(one.left, Margin) << form.Name();
        EXPECT_EQ(one.width, other.width) << form.Name();
        EXPECT_EQ(one.top, other.top) << form.Name();
        EXPECT_NEAR(other.left - one.Right(), Margin, TwipsPerPixel) << form.Name();
        EXPECT_EQ(other.Right(), form.ClientSize().width - Margin) << form.Name();
        EXPECT_EQ(other.Bottom(), form.ClientSize().height - Margin) << form.Name();
    });
    EXPECT_EQ(seen, (std::set<std::string>{"CursValutarDetaliu", "CereMoneda", "AlegeMoneda"}));
}

TEST_F(WindowLayoutTest, WindowsOpenInTheMiddleOfTheScreen) {
    const std::set<std::string> centred = {"CursValutar",  "CursValutarDetaliu", "CereMoneda",
                                           "EvolutieCurs", "frmCalculator",      "AlegeMoneda"};
    std::set<std::string> seen;
    ForEachWindow([&](const forms::Form& form) {
        if (!centred.contains(form.Name())) return;
        seen.insert(form.Name());
        const Rect& bounds = form.Bounds();
        EXPECT_EQ(bounds.left, (desktop.ScreenSize().width - bounds.width) / 2) << form.Name();
        EXPECT_EQ(bounds.top, (desktop.ScreenSize().height - bounds.height) / 2) << form.Name();
    });
    EXPECT_EQ(seen, centred);
}

}  // namespace
}  // namespace tavrin::tests
