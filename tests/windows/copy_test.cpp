// Ctrl+C and F6: what every window does with them, where no handler of its own wants the key.

#include <gmock/gmock.h>

#include "calculator/frm_calculator.h"
#include "rates/evolutie_curs.h"
#include "support/software_surface.h"
#include "windows/every_window.h"

namespace tavrin::tests {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr forms::Modifiers WithControl{.control = true};
constexpr forms::Modifiers Shift{true, false, false};

class CopyTest : public EveryWindowTest {
  protected:
    CopyTest() { com::OpenPalette(application); }

    forms::Form& Window(std::string_view name) {
        forms::Form* const form = Find(name);
        EXPECT_NE(form, nullptr) << name;
        return *form;
    }

    /// What Ctrl+C in a window took along; "nothing" where it did not.
    std::string Copy(std::string_view name) {
        desktop.copied.reset();
        Window(name).HandleKeyDown(forms::key::C, WithControl);
        return desktop.copied ? desktop.copied->text : "nothing";
    }
};

TEST_F(CopyTest, TheRowOfAListGoesAlongUnderItsHeader) {
    Click("Utilitati", "cmdAction(3)");
    auto& grid = dynamic_cast<forms::Grid&>(*Window("CursValutar").FindControl("Grid"));
    grid.SetFocus();
    grid.SetRow(3);
    const std::string text = Copy("CursValutar");
    EXPECT_EQ(std::ranges::count(text, '\n'), 2) << text;
    EXPECT_THAT(text, StartsWith("Data\t"));
    EXPECT_THAT(text, HasSubstr("\r\n" + grid.TextMatrix(3, 0) + "\t"));
    EXPECT_FALSE(desktop.copied->drawPicture);
}

TEST_F(CopyTest, AHiddenColumnStaysBehind) {
    Click("Utilitati", "cmdAction(3)");
    auto& grid = dynamic_cast<forms::Grid&>(*Window("CursValutar").FindControl("Grid"));
    grid.SetFocus();
    const std::string before = Copy("CursValutar");
    int euro = 0;
    while (grid.TextMatrix(0, euro) != "EUR")
        ++euro;
    grid.SetColumnWidth(euro, 0);
    EXPECT_EQ(std::ranges::count(Copy("CursValutar"), '\t'), std::ranges::count(before, '\t') - 2);
}

TEST_F(CopyTest, ACellIsOneCellWhateverItHolds) {
    Click("Utilitati", "cmdAction(3)");
    auto& grid = dynamic_cast<forms::Grid&>(*Window("CursValutar").FindControl("Grid"));
    grid.SetDataSource(nullptr);
    grid.SetSize(2, 2);
    grid.SetColumnWidth(0, 600);
    grid.SetColumnWidth(1, 600);
    grid.SetTextMatrix(0, 0, "A");
    grid.SetTextMatrix(0, 1, "B");
    grid.SetTextMatrix(1, 0, "one\ttwo");
    grid.SetTextMatrix(1, 1, "three\r\nfour");
    EXPECT_EQ(grid.TextOfRows(1, 1), "A\tB\r\none two\tthree  four\r\n");
}

TEST_F(CopyTest, TheChartGoesAlongAsItsTableAndAsAPicture) {
    Click("Utilitati", "cmdAction(3)");
    Click("CursValutar", "cmdAction(5)");
    EXPECT_EQ(Copy("EvolutieCurs"), "nothing") << "there is no chart yet";
    Click("EvolutieCurs", "cmdAction(1)");
    auto& window = *application.Loaded<rates::EvolutieCurs>();
    const std::string text = Copy("EvolutieCurs");
    EXPECT_EQ(std::ranges::count(text, '\n'), window.Grid.Rows());
    ASSERT_TRUE(desktop.copied->drawPicture);
    SoftwareSurface surface({800, 600}, 15, forms::Red);
    desktop.copied->drawPicture(surface);
    EXPECT_NE(surface.Pixel(1, 1), forms::Red) << "the chart covers its ground";
}

TEST_F(CopyTest, TheNumberOfTheLitDisplayGoesAlong) {
    Click("Utilitati", "cmdAction(2)");
    Window("frmCalculator").FindControl("Number(1)")->SetFocus();
    keyboard.Type("12345");
    EXPECT_EQ(Copy("frmCalculator"), application.Loaded<calculator::FrmCalculator>()->ValLei.Text());
    EXPECT_THAT(Copy("frmCalculator"), HasSubstr("345"));
}

TEST_F(CopyTest, APlatformsFieldCopiesByItself) {
    Click("Utilitati", "cmdAction(1)");
    Window("Agenda").FindControl("TextBoxes(0)")->SetFocus();
    EXPECT_EQ(Copy("Agenda"), "nothing");
}

TEST_F(CopyTest, ThePaletteTakesEveryKeyForItself) {
    EXPECT_EQ(Copy("Utilitati"), "nothing");
    Window("Utilitati").HandleKeyDown(forms::key::F6, {});
    EXPECT_EQ(ActiveWindow(), "Utilitati");
}

TEST_F(CopyTest, F6GoesRoundTheWindowsAndBackToTheHost) {
    Click("Utilitati", "cmdAction(3)");
    Click("Utilitati", "cmdAction(1)");
    ASSERT_EQ(ActiveWindow(), "Agenda");
    Window("Agenda").HandleKeyDown(forms::key::F6, Shift);
    EXPECT_EQ(ActiveWindow(), "CursValutar");
    Window("CursValutar").HandleKeyDown(forms::key::F6, {});
    EXPECT_EQ(ActiveWindow(), "Agenda");
    Window("Agenda").HandleKeyDown(forms::key::F6, {});
    EXPECT_EQ(ActiveWindow(), "none") << "the host";
}

TEST_F(CopyTest, WithoutAHostInSightF6BeginsAnew) {
    desktop.hasHost = false;
    Click("Utilitati", "cmdAction(1)");
    Window("Agenda").HandleKeyDown(forms::key::F6, {});
    EXPECT_EQ(ActiveWindow(), "Utilitati");
}

}  // namespace
}  // namespace tavrin::tests
