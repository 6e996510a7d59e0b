// On the demo's data every window opens, and every button of it does what it is there for: none of them leads
// to the report of an error.

#include <string>
#include <vector>

#include "calculator/frm_calculator.h"
#include "rates/alege_moneda.h"
#include "windows/every_window.h"

namespace tavrin::tests {
namespace {

using host::WindowEntry;
using host::WindowState;

class DemoWindowsTest : public EveryWindowTest {
  protected:
    static std::vector<std::string> ButtonsOf(const forms::Form& form) {
        std::vector<std::string> names;
        for (const forms::Control* control : form.AllControls())
            if (control->onClick && IsClickable(*control)) names.push_back(control->QualifiedName());
        return names;
    }

    /// Clicks each button of the window, each in a window of its own, and answers Yes to whatever is asked.
    void ClickEach(const WindowEntry& window, const WindowState& state) {
        const forms::Form* const form = Come(window, state);
        ASSERT_NE(form, nullptr) << window.name;
        for (const std::string& button : ButtonsOf(*form)) {
            ASSERT_NE(Come(window, state), nullptr) << window.name;
            messages.answers = {shell::message::AnswerYes};
            EXPECT_TRUE(Click(window.name, button)) << window.name << "." << button;
            EXPECT_EQ(TakeReports(), "") << window.name << "." << button;
            ++clicked;
        }
    }

    /// What the errors said that have been reported since.
    std::string TakeReports() {
        std::string all;
        for (const auto& [number, description] : desktop.reports)
            all += description + "\n";
        desktop.reports.clear();
        return all;
    }

    int clicked = 0;
};

TEST_F(DemoWindowsTest, NoButtonOfTheDemoLeadsToAnError) {
    for (const WindowEntry& window : host::AllWindows()) {
        for (const WindowState& state : window.states)
            ClickEach(window, state);
    }
    EXPECT_GT(clicked, 60);
}

TEST_F(DemoWindowsTest, TheCalculatorFindsItsCurrency) {
    com::OpenPalette(application);
    EXPECT_TRUE(Click("Utilitati", "cmdAction(2)"));
    EXPECT_TRUE(Click("frmCalculator", "cmdVal"));
    auto* chooser = application.Loaded<rates::AlegeMoneda>();
    EXPECT_EQ(chooser->cmbMoneda.Text(), "$");
    EXPECT_GT(chooser->Grid.Rows(), 700);
    EXPECT_EQ(chooser->Grid.TextMatrix(1, 0), "27/11/2003");
    EXPECT_TRUE(Click("AlegeMoneda", "cmdAction(0)"));
    EXPECT_GT(application.Loaded<calculator::FrmCalculator>()->CursCurent(), 20000);
    EXPECT_EQ(TakeReports(), "");
}

}  // namespace
}  // namespace tavrin::tests
