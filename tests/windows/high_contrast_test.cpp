// Every window of a user who has set high contrast is drawn in the system's colours and in no others.

#include "forms/drawing/contrast.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>

#include "forms/controls/decoration.h"
#include "support/recording_surface.h"
#include "windows/every_window.h"

namespace tavrin::tests {
namespace {

using forms::ColorUse;

/// None of them is a colour of the windows' own.
constexpr forms::ContrastColors System{.window = 0x010203,
                                       .text = 0xFFFEFD,
                                       .disabled = 0x3FF23F,
                                       .highlight = 0xFFEB1A,
                                       .highlightText = 0x100000};

class HighContrastTest : public EveryWindowTest {
  protected:
    std::vector<Drawn> Draw(const forms::Control& control) {
        RecordingSurface surface;
        forms::ContrastSurface contrast(surface, System);
        contrast.FillRectangle({0, 0, control.Bounds().width, control.Bounds().height}, control.BackColor());
        control.Draw(contrast);
        if (const auto* container = dynamic_cast<const forms::Container*>(&control))
            forms::DrawDecorations(*container, contrast);
        return surface.All();
    }

    void LookAt(forms::Control& control) {
        Check(control);
        control.SetFocus();
        control.HandleMouseMove({});
        Check(control);
        control.HandleMouseLeave();
        const bool enabled = control.Enabled();
        control.SetEnabled(false);
        Check(control);
        control.SetEnabled(enabled);
    }

    void Check(const forms::Control& control) {
        for (const Drawn& drawn : Draw(control)) {
            const bool isText = drawn.kind == Drawing::Text;
            const forms::Color color = isText ? drawn.style.color : drawn.color;
            const std::array<forms::Color, 5> known{System.window, System.text, System.disabled,
                                                    System.highlight, System.highlightText};
            ++looked_;
            EXPECT_THAT(known, testing::Contains(color)) << control.QualifiedName();
            const bool isReadable = color != System.window && color != System.highlight;
            EXPECT_TRUE(!isText || isReadable) << control.QualifiedName() << " " << drawn.text;
        }
    }

    int looked_ = 0;
};

TEST_F(HighContrastTest, EveryWindowIsDrawnInTheSystemsColors) {
    ForEachWindow([this](forms::Form& form) {
        for (forms::Control* control : form.AllControls())
            LookAt(*control);
    });
    EXPECT_GT(looked_, 3000);
}

TEST_F(HighContrastTest, ASelectedRowIsHighlightedWithTheTextThatBelongsToIt) {
    auto& list = application.Default<rates::CursValutar>();
    list.ShowForm();
    list.SelectWholeRow();
    list.Grid.SetFocus();
    const std::vector<Drawn> drawn = Draw(list.Grid);
    const std::string selected = list.Grid.TextMatrix(list.Grid.Row(), 0);
    const std::string other = list.Grid.TextMatrix(list.Grid.Row() + 1, 0);
    const auto colorOf = [&](const std::string& text) {
        return std::ranges::find(drawn, text, &Drawn::text)->style.color;
    };
    EXPECT_EQ(colorOf(selected), System.highlightText);
    EXPECT_EQ(colorOf(other), System.text);
    EXPECT_EQ(std::ranges::count(drawn, System.highlight, &Drawn::color), 2)
        << "the row, and the frame of the grid";
}

TEST_F(HighContrastTest, ADisabledControlIsGreyed) {
    auto& list = application.Default<rates::CursValutar>();
    list.ShowForm();
    list.cmdRefresh.SetEnabled(false);
    for (const Drawn& drawn : Draw(list.cmdRefresh)) {
        if (drawn.kind == Drawing::Text) {
            EXPECT_EQ(drawn.style.color, System.disabled);
        }
    }
}

TEST_F(HighContrastTest, LinesThatAreDrawnAsAreasAreSeen) {
    namespace scheme = forms::scheme;
    EXPECT_EQ(InContrast(System, ColorUse::Area, scheme::Border), System.text);
    for (const forms::Color ground : {scheme::Window, scheme::Field, scheme::Face, scheme::FaceHot,
                                      scheme::FacePressed, forms::FocusGrey})
        EXPECT_EQ(InContrast(System, ColorUse::Area, ground), System.window) << ground;
    EXPECT_EQ(InContrast(System, ColorUse::Area, scheme::CurrentRow), System.highlight);
    EXPECT_EQ(InContrast(System, ColorUse::Line, scheme::GridLine), System.text);
    EXPECT_EQ(InContrast(System, ColorUse::Line, scheme::Focus), System.highlight);
    EXPECT_EQ(InContrast(System, ColorUse::SelectedText, scheme::Value), System.highlightText);
}

}  // namespace
}  // namespace tavrin::tests
