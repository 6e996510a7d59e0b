#include "forms/drawing/rasterizer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

namespace tavrin::tests {
namespace {

using forms::CoverageMask;
using forms::PixelBox;
using forms::PointF;

constexpr PixelBox Clip{0, 0, 100, 100};

/// The covered area in pixels.
double Area(const CoverageMask& mask) {
    double sum = 0;
    for (int y = mask.Box().top; y < mask.Box().bottom; ++y) {
        for (const std::uint8_t coverage : mask.Row(y))
            sum += coverage / 255.0;
    }
    return sum;
}

int At(const CoverageMask& mask, int x, int y) {
    const PixelBox& box = mask.Box();
    if (x < box.left || x >= box.right || y < box.top || y >= box.bottom) return 0;
    return mask.Row(y)[static_cast<std::size_t>(x - box.left)];
}

std::vector<PointF> Rectangle(double left, double top, double right, double bottom) {
    return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

std::vector<PointF> Circle(double x, double y, double radius) {
    std::vector<PointF> outline;
    for (int i = 0; i < 256; ++i) {
        const double angle = 2 * std::numbers::pi * i / 256;
        outline.push_back({x + radius * std::cos(angle), y + radius * std::sin(angle)});
    }
    return outline;
}

TEST(RasterizerTest, ARectangleOfWholePixelsCoversThemAndNothingElse) {
    const CoverageMask mask = PolygonCoverage(Rectangle(10, 20, 13, 22), Clip);
    EXPECT_DOUBLE_EQ(Area(mask), 6);
    for (int y = 18; y < 24; ++y) {
        for (int x = 8; x < 16; ++x)
            EXPECT_EQ(At(mask, x, y), x >= 10 && x < 13 && y >= 20 && y < 22 ? 255 : 0) << x << ", " << y;
    }
}

TEST(RasterizerTest, BrokenEdgesAreCoveredByTheirShare) {
    const CoverageMask mask = PolygonCoverage(Rectangle(10.25, 20, 12.5, 21.5), Clip);
    EXPECT_NEAR(At(mask, 10, 20), 0.75 * 255, 1);
    EXPECT_EQ(At(mask, 11, 20), 255);
    EXPECT_NEAR(At(mask, 12, 20), 0.5 * 255, 1);
    EXPECT_NEAR(At(mask, 11, 21), 0.5 * 255, 1);
    EXPECT_NEAR(Area(mask), 2.25 * 1.5, 0.02);
}

TEST(RasterizerTest, SlantedShapesCoverTheirArea) {
    const std::vector<PointF> triangle{{10, 10}, {50, 10}, {10, 40}};
    EXPECT_NEAR(Area(PolygonCoverage(triangle, Clip)), 600, 1);
    EXPECT_NEAR(Area(PolygonCoverage(Circle(50, 50, 30.3), Clip)), std::numbers::pi * 30.3 * 30.3, 3);
}

TEST(RasterizerTest, TheDirectionOfAnOutlineDoesNotMatter) {
    std::vector<PointF> outline = Circle(40, 40, 17);
    const double area = Area(PolygonCoverage(outline, Clip));
    std::ranges::reverse(outline);
    EXPECT_NEAR(Area(PolygonCoverage(outline, Clip)), area, 0.05);
}

TEST(RasterizerTest, WhereAnOutlineOverlapsItselfIsAHole) {
    std::vector<PointF> twice = Rectangle(10, 10, 20, 20);
    twice.push_back({10, 10});
    for (const PointF& point : Rectangle(12, 12, 18, 18))
        twice.push_back(point);
    twice.push_back({12, 12});
    EXPECT_EQ(At(PolygonCoverage(twice, Clip), 15, 15), 0);
    EXPECT_EQ(At(PolygonCoverage(twice, Clip), 11, 15), 255);
}

TEST(RasterizerTest, NothingIsCoveredOutsideTheClip) {
    const PixelBox clip{10, 10, 20, 15};
    const CoverageMask mask = PolygonCoverage(Rectangle(-1000, -1000, 1000, 1000), clip);
    EXPECT_EQ(mask.Box(), clip);
    EXPECT_DOUBLE_EQ(Area(mask), 50);
    EXPECT_TRUE(PolygonCoverage(Rectangle(30, 30, 40, 40), clip).Box().IsEmpty());
}

TEST(RasterizerTest, DegenerateShapesCoverNothing) {
    EXPECT_DOUBLE_EQ(Area(PolygonCoverage({}, Clip)), 0);
    EXPECT_DOUBLE_EQ(Area(PolygonCoverage(std::vector<PointF>{{5, 5}}, Clip)), 0);
    EXPECT_DOUBLE_EQ(Area(PolygonCoverage(std::vector<PointF>{{5, 5}, {50, 60}}, Clip)), 0);
    EXPECT_DOUBLE_EQ(Area(PolygonCoverage(Rectangle(5, 5, 90, 90), PixelBox{})), 0);
}

TEST(RasterizerTest, PointsThatAreNoNumbersGiveAnEmptyMask) {
    for (const double bad :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        const std::vector<PointF> points{{5, 5}, {bad, 20}, {30, 30}};
        EXPECT_TRUE(PolygonCoverage(points, Clip).Box().IsEmpty());
        EXPECT_TRUE(PolylineCoverage(points, 2, Clip).Box().IsEmpty());
    }
}

TEST(RasterizerTest, FarAwayPointsAreNoTrouble) {
    const std::vector<PointF> points{{-1e12, 50}, {1e12, 50}};
    const CoverageMask mask = PolylineCoverage(points, 2, Clip);
    EXPECT_NEAR(Area(mask), 200, 4);
    EXPECT_NEAR(Area(PolygonCoverage(Rectangle(-1e12, 10, 1e12, 20), Clip)), 1000, 1);
}

TEST(RasterizerTest, AStraightLineCoversItsLengthAndTwoHalfDiscs) {
    const std::vector<PointF> level{{20, 50}, {80, 50}};
    EXPECT_NEAR(Area(PolylineCoverage(level, 4, Clip)), 60 * 4 + std::numbers::pi * 4, 3);
    const std::vector<PointF> slanted{{20, 20}, {80, 65}};
    EXPECT_NEAR(Area(PolylineCoverage(slanted, 4, Clip)), 75 * 4 + std::numbers::pi * 4, 4);
}

TEST(RasterizerTest, ALineOnWholePixelsIsSharp) {
    const std::vector<PointF> level{{20, 50}, {80, 50}};
    const CoverageMask mask = PolylineCoverage(level, 2, Clip);
    for (const int x : {25, 50, 75}) {
        EXPECT_EQ(At(mask, x, 48), 0);
        EXPECT_EQ(At(mask, x, 49), 255);
        EXPECT_EQ(At(mask, x, 50), 255);
        EXPECT_EQ(At(mask, x, 51), 0);
    }
}

TEST(RasterizerTest, ThinLinesGrowPalerInsteadOfVanishing) {
    const std::vector<PointF> level{{20, 50.5}, {80, 50.5}};
    EXPECT_EQ(At(PolylineCoverage(level, 1, Clip), 50, 50), 255);
    EXPECT_NEAR(At(PolylineCoverage(level, 0.4, Clip), 50, 50), 0.4 * 255, 2);
}

TEST(RasterizerTest, BendsAreNoBolderThanTheLine) {
    // A line that consists of many short pieces looks like one that is drawn in one go.
    std::vector<PointF> pieces;
    for (int i = 0; i <= 240; ++i)
        pieces.push_back({20 + i * 0.25, 20 + i * 0.1875});
    const std::vector<PointF> whole{pieces.front(), pieces.back()};
    const CoverageMask mask = PolylineCoverage(pieces, 2, Clip);
    const CoverageMask expected = PolylineCoverage(whole, 2, Clip);
    ASSERT_EQ(mask.Box(), expected.Box());
    for (int y = mask.Box().top; y < mask.Box().bottom; ++y) {
        for (int x = mask.Box().left; x < mask.Box().right; ++x)
            EXPECT_NEAR(At(mask, x, y), At(expected, x, y), 1) << x << ", " << y;
    }
}

TEST(RasterizerTest, ASinglePointIsADot) {
    const std::vector<PointF> point{{50, 50}};
    EXPECT_NEAR(Area(PolylineCoverage(point, 10, Clip)), std::numbers::pi * 25, 1.5);
    EXPECT_DOUBLE_EQ(Area(PolylineCoverage({}, 10, Clip)), 0);
    EXPECT_DOUBLE_EQ(Area(PolylineCoverage(point, 0, Clip)), 0);
}

TEST(RasterizerTest, BlendingGoesFromOneColourToTheOther) {
    EXPECT_EQ(forms::Blend(0x102030, 0xF0E0D0, 0), 0x102030U);
    EXPECT_EQ(forms::Blend(0x102030, 0xF0E0D0, 255), 0xF0E0D0U);
    EXPECT_EQ(forms::Blend(0x000000, 0xFFFFFF, 128), 0x808080U);
}

}  // namespace
}  // namespace tavrin::tests
