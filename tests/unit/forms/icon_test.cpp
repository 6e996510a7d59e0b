#include "forms/drawing/icon.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

#include "support/recording_surface.h"
#include "support/software_surface.h"

namespace tavrin::tests {
namespace {

using forms::Icon;
using testing::IsEmpty;

constexpr int LastIcon = static_cast<int>(Icon::Underline);

std::vector<forms::Color> Picture(Icon icon, int pixels, double pixelSize) {
    SoftwareSurface surface({pixels, pixels}, pixelSize, forms::Black);
    const int side = static_cast<int>(pixels * pixelSize);
    DrawIcon(surface, icon, {0, 0, side, side}, forms::Green);
    std::vector<forms::Color> picture;
    for (int y = 0; y < pixels; ++y) {
        for (int x = 0; x < pixels; ++x)
            picture.push_back(surface.Pixel(x, y));
    }
    return picture;
}

TEST(IconTest, EveryIconStaysInItsAreaAtEveryResolution) {
    for (const double pixelSize : {15.0, 12.0, 10.0, 7.5}) {
        for (int i = 1; i <= LastIcon; ++i) {
            RecordingSurface surface(pixelSize);
            const forms::Rect area{105, 45, 300, 420};
            DrawIcon(surface, static_cast<Icon>(i), area, forms::Green);
            EXPECT_FALSE(surface.All().empty()) << i;
            EXPECT_THAT(surface.Outside(area.Inset(-1)), IsEmpty()) << i << " at " << pixelSize;
        }
    }
}

TEST(IconTest, TheSquareStandsInTheMiddleOfAWideArea) {
    RecordingSurface surface;
    DrawIcon(surface, Icon::Add, {0, 0, 900, 300}, forms::Green);
    for (const Drawn& stroke : surface.All())
        EXPECT_NEAR(stroke.area.left + stroke.area.Right(), 900, 30);
}

/// Lengths of the bright and the dark stretches of a row of pixels, from the first bright one to the last.
std::vector<int> Stretches(const std::vector<forms::Color>& picture, int pixels, int row) {
    std::vector<int> lengths;
    bool wasBright = false;
    for (int x = 0; x < pixels; ++x) {
        const forms::Color pixel = picture[static_cast<std::size_t>(row) * static_cast<std::size_t>(pixels) +
                                           static_cast<std::size_t>(x)];
        const bool isBright = (pixel >> 8 & 0xFF) > 0x60;
        if (lengths.empty() && !isBright) continue;
        if (lengths.empty() || isBright != wasBright) lengths.push_back(0);
        ++lengths.back();
        wasBright = isBright;
    }
    if (!wasBright && !lengths.empty()) lengths.pop_back();
    return lengths;
}

TEST(IconTest, TheCoinOfANewCurrencyIsOpenInsideInTheSizeOfAButton) {
    constexpr int Side = 20;
    const std::vector<int> middle = Stretches(Picture(Icon::AddCurrency, Side, 15), Side, 12);
    ASSERT_EQ(middle.size(), 5U) << "rim, inside, stroke, inside, rim";
    EXPECT_GE(middle[1], 4);
    EXPECT_GE(middle[3], 4);
}

TEST(IconTest, NoTwoIconsLookAlikeInTheSmallestSize) {
    std::set<std::vector<forms::Color>> pictures;
    for (int i = 1; i <= LastIcon; ++i)
        pictures.insert(Picture(static_cast<Icon>(i), 16, 15));
    // Close and Cancel are the same cross in two strengths.
    EXPECT_EQ(pictures.size(), static_cast<std::size_t>(LastIcon));
}

TEST(IconTest, UprightAndLevelStrokesAreSharp) {
    for (const int pixels : {16, 20, 24, 32, 48}) {
        const auto picture = Picture(Icon::Add, pixels, 7.5);
        const auto pale = std::ranges::count_if(
            picture, [](forms::Color pixel) { return pixel != forms::Black && pixel != forms::Green; });
        EXPECT_LE(pale, 24) << pixels;  // the round ends of two strokes
    }
}

TEST(IconTest, NoneAndAnEmptyAreaDrawNothing) {
    RecordingSurface surface;
    DrawIcon(surface, Icon::None, {0, 0, 300, 300}, forms::Green);
    EXPECT_THAT(surface.All(), IsEmpty());
    SoftwareSurface pixels({4, 4}, 15, forms::Black);
    DrawIcon(pixels, Icon::Chart, {0, 0, 0, 0}, forms::Green);
}

}  // namespace
}  // namespace tavrin::tests
