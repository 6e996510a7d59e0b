// On the demo's data every window opens, and every button of it does what it is there for: none of them leads
// to the report of an error.

#include <algorithm>
#include <string>
#include <vector>

#include "com/composition.h"
#include "notes/notes.h"
#include "support/fake_rich_text.h"
#include "windows/every_window.h"

namespace tavrin::tests {
namespace {

struct ButtonOfWindow {
    const char* window;
    const char* button;
};

/// How a user comes to a window: by clicks, from the palette on.
struct Way {
    const char* window;
    std::vector<ButtonOfWindow> clicks;
};

const std::vector<Way>& Ways() {
    static const std::vector<Way> ways{
        {"Utilitati", {}},
        {"Notes", {{"Utilitati", "cmdAction(0)"}}},
        {"Agenda", {{"Utilitati", "cmdAction(1)"}}},
        {"Agenda", {{"Utilitati", "cmdAction(1)"}, {"Agenda", "cmdAction(2)"}}},
        {"Agenda", {{"Utilitati", "cmdAction(1)"}, {"Agenda", "cmdAction(3)"}}},
        {"frmCalculator", {{"Utilitati", "cmdAction(2)"}}},
        {"AlegeMoneda", {{"Utilitati", "cmdAction(2)"}, {"frmCalculator", "cmdVal"}}},
        {"CursValutar", {{"Utilitati", "cmdAction(3)"}}},
        {"CursValutarDetaliu", {{"Utilitati", "cmdAction(3)"}, {"CursValutar", "cmdAction(0)"}}},
        {"CursValutarDetaliu", {{"Utilitati", "cmdAction(3)"}, {"CursValutar", "cmdAction(1)"}}},
        {"CereMoneda", {{"Utilitati", "cmdAction(3)"}, {"CursValutar", "cmdAction(3)"}}},
        {"EvolutieCurs", {{"Utilitati", "cmdAction(3)"}, {"CursValutar", "cmdAction(5)"}}},
    };
    return ways;
}

class DemoWindowsTest : public EveryWindowTest {
  protected:
    DemoWindowsTest() {
        com::AddWindows(module);
        desktop.whenCreating = [](forms::Form& form) {
            for (forms::Control* control : form.AllControls())
                if (auto* box = dynamic_cast<forms::RichTextBox*>(control)) FakeRichText::Give(*box);
        };
    }

    forms::Form* Find(std::string_view name) const {
        const auto& open = desktop.Forms();
        const auto found = std::ranges::find(open, name, &forms::Form::Name);
        return found != open.end() ? *found : nullptr;
    }

    /// \return whether there is such a control, and it could be clicked
    bool Click(std::string_view window, std::string_view button) {
        const forms::Form* form = Find(window);
        forms::Control* control = form != nullptr ? form->FindControl(button) : nullptr;
        if (control == nullptr || !IsClickable(*control)) return false;
        const forms::Desktop::DispatchScope scope(desktop);
        control->Click();
        return true;
    }

    static bool IsClickable(const forms::Control& control) {
        return control.IsEffectivelyVisible() && control.AcceptsInput();
    }

    /// Begins at the palette anew, on the data as they were. \return null where the way does not lead to the
    /// window
    forms::Form* Come(const Way& way) {
        desktop.UnloadAll();
        StartAnew();
        com::OpenPalette(module);
        for (const auto& [window, button] : way.clicks)
            if (!Click(window, button)) return nullptr;
        return Find(way.window);
    }

    static std::vector<std::string> ButtonsOf(const forms::Form& form) {
        std::vector<std::string> names;
        for (const forms::Control* control : form.AllControls())
            if (control->onClick && IsClickable(*control)) names.push_back(control->QualifiedName());
        return names;
    }

    /// Clicks each button of the window, each in a window of its own, and answers Yes to whatever is asked.
    void ClickEach(const Way& way) {
        const forms::Form* const form = Come(way);
        ASSERT_NE(form, nullptr) << way.window;
        for (const std::string& button : ButtonsOf(*form)) {
            ASSERT_NE(Come(way), nullptr) << way.window;
            messages.answers = {shell::message::AnswerYes};
            EXPECT_TRUE(Click(way.window, button)) << way.window << "." << button;
            EXPECT_EQ(TakeReports(), "") << way.window << "." << button;
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
    for (const Way& way : Ways())
        ClickEach(way);
    EXPECT_GT(clicked, 60);
}

TEST_F(DemoWindowsTest, TheCalculatorFindsItsCurrency) {
    ASSERT_NE(Come(Ways()[6]), nullptr);
    auto* chooser = module.Loaded<rates::AlegeMoneda>();
    EXPECT_EQ(chooser->cmbMoneda.Text(), "$");
    EXPECT_GT(chooser->Grid.Rows(), 700);
    EXPECT_EQ(chooser->Grid.TextMatrix(1, 0), "27/11/2003");
    EXPECT_TRUE(Click("AlegeMoneda", "cmdAction(0)"));
    EXPECT_GT(module.Loaded<calculator::FrmCalculator>()->CursCurent(), 20000);
    EXPECT_EQ(TakeReports(), "");
}

}  // namespace
}  // namespace tavrin::tests
