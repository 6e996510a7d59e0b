// Windows shown larger, because the user wants larger texts: the screen is smaller for them then.

#include "forms/drawing/text_scale.h"

#include <gmock/gmock.h>

#include <cmath>
#include <string_view>

#include "forms/controls/command_button.h"
#include "support/recording_surface.h"
#include "windows/every_window.h"

namespace tavrin::tests {
namespace {

using forms::Size;
using forms::UsableTextScale;

constexpr int Standard = 100;

/// A screen of 96 DPI, in twips of windows that are shown larger.
constexpr Size ScreenOf(int width, int height, int percent = Standard) {
    constexpr int TwipsPerPixel = 15;
    return {width * TwipsPerPixel * Standard / percent, height * TwipsPerPixel * Standard / percent};
}

/// Measures as the windows' font does, rounded up, so that what fits here fits there.
class FontLikeSurface : public RecordingSurface {
  public:
    using RecordingSurface::RecordingSurface;

    Size MeasureText(std::string_view text, const forms::Font& font) override {
        double ems = 0;
        for (const char each : text)
            ems += Width(each) + (font.bold ? 0.05 : 0);
        const double em = font.points * forms::TwipsPerInch / 72;
        return {static_cast<int>(std::ceil(ems * em)), static_cast<int>(std::ceil(1.2 * em))};
    }

  private:
    static double Width(char character) {
        const auto isOneOf = [character](std::string_view all) {
            return all.find(character) != std::string_view::npos;
        };
        if ((character & 0xC0) == 0x80) return 0;  // what follows in a character of several bytes
        if (isOneOf(" .,:;/!'ijltfI")) return 0.28;
        if (isOneOf("r-(|)")) return 0.34;
        if (isOneOf("mM")) return 0.84;
        if (isOneOf("W%@")) return 0.95;
        if (isOneOf("GOQ")) return 0.78;
        return (character >= 'A' && character <= 'Z') || character == 'w' ? 0.73 : 0.56;
    }
};

TEST(TextScaleRuleTest, IsWhatTheUserWantsWhereThereIsRoom) {
    for (const int wanted : {100, 117, 150, 225})
        EXPECT_EQ(UsableTextScale(wanted, ScreenOf(3840, 2160)), wanted);
    EXPECT_EQ(UsableTextScale(0, ScreenOf(3840, 2160)), Standard) << "nothing is set";
    EXPECT_EQ(UsableTextScale(50, ScreenOf(3840, 2160)), Standard);
    EXPECT_EQ(UsableTextScale(400, ScreenOf(3840, 2160)), 225);
}

TEST(TextScaleRuleTest, LeavesRoomForEveryWindow) {
    for (const auto& [width, height] : {std::pair(1920, 1080), {1366, 768}, {1280, 1024}}) {
        const int percent = UsableTextScale(225, ScreenOf(width, height));
        EXPECT_GT(percent, Standard) << width;
        EXPECT_LT(percent, 225) << width;
        EXPECT_GE(ScreenOf(width, height, percent).width, forms::LargestWindow.width) << width;
        EXPECT_GE(ScreenOf(width, height, percent).height, forms::LargestWindow.height) << width;
    }
    EXPECT_EQ(UsableTextScale(225, ScreenOf(640, 480)), Standard) << "never smaller than drawn up";
}

class TextScaleTest : public EveryWindowTest {
  protected:
    void ForEachScale(const Look& look) {
        for (const int percent : {100, 150, 225}) {
            SCOPED_TRACE(percent);
            desktop.screen = ScreenOf(2048, 1280, percent);
            pixel = 15.0 * Standard / percent;
            ForEachWindow(look);
        }
    }

    double pixel = 0;
};

TEST_F(TextScaleTest, EveryWindowIsOnTheScreen) {
    ForEachScale([this](const forms::Form& form) {
        EXPECT_GE(form.Bounds().left, 0) << form.Name();
        EXPECT_GE(form.Bounds().top, 0) << form.Name();
        EXPECT_LE(form.Bounds().Right(), desktop.screen.width) << form.Name();
        EXPECT_LE(form.Bounds().Bottom(), desktop.screen.height) << form.Name();
    });
}

/// A thick frame on both sides, and a title bar.
TEST_F(TextScaleTest, NoWindowIsLargerThanTheLargest) {
    static constexpr Size Frame{300, 750};
    ForEachWindow([](const forms::Form& form) {
        const bool isSizable = form.Border() == forms::BorderStyle::Sizable;
        const Size client = isSizable ? form.SmallestClientSize() : form.ClientSize();
        EXPECT_LE(client.width + Frame.width, forms::LargestWindow.width) << form.Name();
        EXPECT_LE(client.height + Frame.height, forms::LargestWindow.height) << form.Name();
    });
}

TEST_F(TextScaleTest, NoTextIsCut) {
    ForEachScale([this](const forms::Form& form) {
        for (const forms::Control* control : form.AllControls()) {
            if (!control->IsEffectivelyVisible()) continue;
            FontLikeSurface surface(pixel);
            control->Draw(surface);
            EXPECT_THAT(surface.CutTexts(), testing::IsEmpty())
                << form.Name() << "." << control->QualifiedName();
        }
    });
}

}  // namespace
}  // namespace tavrin::tests
