// Every text of every window can be read, and every frame, marker and picture can be seen: its colour stands
// out from what is beside or beneath it, whatever state its control is in.

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>

#include "forms/controls/decoration.h"
#include "forms/controls/text_box.h"
#include "support/recording_surface.h"
#include "windows/every_window.h"

namespace tavrin::tests {
namespace {

using forms::Color;

constexpr double LeastContrast = 4.5;
constexpr double LeastContrastOfShapes = 3;

/// Backgrounds that are not the scheme's to choose: of the focused field, and of the palette's strip.
constexpr Color GivenBackgrounds[] = {forms::FocusGrey, 0x004000};

double Linear(Color color, int shift) {
    const double share = ((color >> shift) & 0xFF) / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

/// The usual measure of legibility, from 1 to 21.
double Contrast(Color one, Color other) {
    const auto luminance = [](Color color) {
        return 0.2126 * Linear(color, 0) + 0.7152 * Linear(color, 8) + 0.0722 * Linear(color, 16) + 0.05;
    };
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return lighter / darker;
}

/// Where a text begins to be seen.
forms::Point AnchorOf(const Drawn& text) {
    const forms::Rect& area = text.area;
    const int inside = std::min(area.width / 2, 60);
    int x = area.left + area.width / 2;
    if (text.style.align == forms::Align::Left) x = area.left + inside;
    if (text.style.align == forms::Align::Right) x = area.Right() - inside;
    return {x, area.top + area.height / 2};
}

/// What was filled last at a place before the drawing of that number; `own` is the ground that a frame
/// encloses.
Color BackgroundAt(const std::vector<Drawn>& drawn, std::size_t number, forms::Point place, Color otherwise,
                   const forms::Rect& own = {}) {
    for (std::size_t i = number; i-- > 0;) {
        const bool fills = drawn[i].kind == Drawing::Rectangle || drawn[i].kind == Drawing::Polygon;
        if (fills && drawn[i].area.Contains(place) && drawn[i].area != own) return drawn[i].color;
    }
    return otherwise;
}

Color BackgroundOf(const std::vector<Drawn>& drawn, std::size_t text, Color otherwise) {
    return BackgroundAt(drawn, text, AnchorOf(drawn[text]), otherwise);
}

/// Lines that only guide the eye, and frames of what is disabled.
bool IsQuiet(Color color) {
    return color == forms::scheme::GridLine || color == forms::scheme::TextDisabled;
}

class ContrastTest : public EveryWindowTest {
  protected:
    /// Looks at all controls of the window as they are, with each of them in turn focused, under the mouse
    /// and held down, and disabled.
    void LookAt(forms::Form& form) {
        window_ = form.Name();
        RecordingSurface surface;
        forms::DrawDecorations(form, surface);
        LookAtTexts(surface, form.BackColor(), "decoration");
        for (forms::Control* control : form.AllControls())
            LookAt(*control);
    }

    void LookAt(forms::Control& control) {
        Draw(control, "as it is");
        control.SetFocus();
        Draw(control, "focused");
        control.HandleMouseMove({});
        Draw(control, "under the mouse");
        control.HandleMouseLeave();
        const bool enabled = control.Enabled();
        control.SetEnabled(false);
        Draw(control, "disabled");
        control.SetEnabled(enabled);
    }

    void Draw(const forms::Control& control, const char* state) {
        const std::string what = control.QualifiedName() + " " + state;
        RecordingSurface surface;
        control.Draw(surface);
        if (const auto* container = dynamic_cast<const forms::Container*>(&control))
            forms::DrawDecorations(*container, surface);
        LookAtTexts(surface, control.BackColor(), what);
        LookAtShapes(surface, control, what);
        // The platform draws a field's text in these.
        if (control.Kind() == forms::ControlKind::TextBox || control.Kind() == forms::ControlKind::ComboBox) {
            const bool isField = control.Kind() == forms::ControlKind::TextBox;
            const bool own = isField ? control.Enabled() : control.IsEffectivelyEnabled();
            const Color text = own ? control.ForeColor() : forms::scheme::TextDisabled;
            Compare(text, control.BackColor(), what);
        }
    }

    void LookAtTexts(const RecordingSurface& surface, Color back, const std::string& what) {
        const std::vector<Drawn>& drawn = surface.All();
        for (std::size_t i = 0; i < drawn.size(); ++i) {
            if (drawn[i].kind == Drawing::Text && !drawn[i].text.empty()) {
                Compare(drawn[i].style.color, BackgroundOf(drawn, i, back),
                        what + " '" + drawn[i].text + "'");
            }
        }
    }

    /// A frame around the whole control is seen against the window, everything else against what is beneath.
    void LookAtShapes(const RecordingSurface& surface, const forms::Control& control,
                      const std::string& what) {
        const std::vector<Drawn>& drawn = surface.All();
        const forms::Rect whole{0, 0, control.Bounds().width, control.Bounds().height};
        for (std::size_t i = 0; i < drawn.size(); ++i) {
            const bool isFrame = drawn[i].kind == Drawing::Frame;
            if ((!isFrame && drawn[i].kind != Drawing::Polyline) || IsQuiet(drawn[i].color)) continue;
            const forms::Point place{drawn[i].area.left, drawn[i].area.top};
            const bool isAround = isFrame && drawn[i].area == whole;
            const Color beside = isAround ? control.OwnerForm().BackColor()
                                          : BackgroundAt(drawn, i, place, control.BackColor(),
                                                         isFrame ? drawn[i].area : forms::Rect{});
            ++shapes_;
            if (!seenShapes_.insert({drawn[i].color, beside}).second) continue;
            EXPECT_GE(Contrast(drawn[i].color, beside), LeastContrastOfShapes)
                << window_ << ": " << what << std::hex << ", shape " << drawn[i].color << " on " << beside;
        }
    }

    void Compare(Color text, Color back, const std::string& what) {
        const bool isGiven = std::ranges::find(GivenBackgrounds, back) != std::end(GivenBackgrounds);
        if (isGiven && text == forms::scheme::TextDisabled) return;
        ++compared_;
        if (!seen_.insert({text, back}).second) return;
        EXPECT_GE(Contrast(text, back), LeastContrast)
            << window_ << ": " << what << std::hex << ", text " << text << " on " << back;
    }

    int compared_ = 0;
    int shapes_ = 0;

  private:
    std::string window_;
    std::set<std::pair<Color, Color>> seenShapes_;
    std::set<std::pair<Color, Color>> seen_;
};

TEST_F(ContrastTest, Measures) {
    EXPECT_NEAR(Contrast(0x000000, 0xFFFFFF), 21, 0.01);
    EXPECT_NEAR(Contrast(0x767676, 0xFFFFFF), 4.54, 0.01);
    EXPECT_NEAR(Contrast(0x0000FF, 0xFFFFFF), 4.0, 0.01) << "red";
}

TEST_F(ContrastTest, EveryTextCanBeReadAndEveryShapeSeen) {
    ForEachWindow([this](forms::Form& form) { LookAt(form); });
    EXPECT_GT(compared_, 1000);
    EXPECT_GT(shapes_, 500);
}

TEST_F(ContrastTest, MarkersStandOutFromWhatTheyMark) {
    namespace scheme = forms::scheme;
    const std::pair<Color, Color> markers[] = {
        {scheme::CurrentRow, scheme::Field},   {scheme::CurrentRowDisabled, scheme::Field},
        {scheme::Focus, scheme::CurrentRow},    // the line beneath the current cell
        {scheme::Border, scheme::FacePressed},  // the thumb of a scroll bar
        {scheme::Border, scheme::Face},         // a grid's header
        {scheme::FocusOnPage, scheme::Window},  // the note's frame, from without
        {scheme::FocusOnPage, 0xFFFFFF},        // and from within
    };
    for (const auto& [marker, beside] : markers)
        EXPECT_GE(Contrast(marker, beside), LeastContrastOfShapes) << std::hex << marker << " on " << beside;
    EXPECT_GT(Contrast(scheme::Value, scheme::LabelText), 1.5) << "labels stay behind their values";
    EXPECT_LT(Contrast(scheme::FocusOnPage, scheme::Window), Contrast(scheme::Focus, scheme::Window));
}

}  // namespace
}  // namespace tavrin::tests
