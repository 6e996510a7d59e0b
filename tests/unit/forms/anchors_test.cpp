// How controls follow the size of what they stand in.

#include "forms/model/anchors.h"

#include <gtest/gtest.h>

#include <memory>

#include "forms/controls/frame.h"
#include "forms/controls/grid.h"
#include "forms/model/form.h"
#include "support/counting_peer.h"
#include "support/headless_desktop.h"

namespace tavrin::tests {
namespace {

using forms::Anchors;
using forms::Rect;
using forms::Size;

constexpr Rect Designed{120, 240, 900, 600};
constexpr Size Around{3000, 2400};

Rect Grown(Anchors anchors) {
    return Anchored(Designed, Around, {Around.width + 1005, Around.height + 510}, anchors);
}

TEST(AnchorsTest, AControlFollowsTheEdgesThatItIsAnchoredTo) {
    EXPECT_EQ(Grown(Anchors::TopLeft), Designed);
    EXPECT_EQ(Grown(Anchors::TopRight), (Rect{1125, 240, 900, 600}));
    EXPECT_EQ(Grown(Anchors::Top), (Rect{120, 240, 1905, 600}));
    EXPECT_EQ(Grown(Anchors::Left), (Rect{120, 240, 900, 1110}));
    EXPECT_EQ(Grown(Anchors::Right), (Rect{1125, 240, 900, 1110}));
    EXPECT_EQ(Grown(Anchors::BottomRight), (Rect{1125, 750, 900, 600}));
    EXPECT_EQ(Grown(Anchors::Bottom), (Rect{120, 750, 1905, 600}));
    EXPECT_EQ(Grown(Anchors::All), (Rect{120, 240, 1905, 1110}));
}

TEST(AnchorsTest, NothingIsLeftOfAControlWithoutRoom) {
    EXPECT_EQ(Anchored(Designed, Around, {1500, 1200}, Anchors::All), (Rect{120, 240, 0, 0}));
}

class AnchoredForm : public forms::Form {
  public:
    explicit AnchoredForm(forms::Desktop& desktop)
        : Form(desktop, "Anchored", "Anchored", forms::BorderStyle::Sizable) {
        SetClientSize({3000, 2400});
        Anchor(frame, Anchors::All);
        Anchor(grid, Anchors::All);
        Anchor(corner, Anchors::BottomRight);
    }

    forms::Frame frame{*this, "frame", {120, 120, 2000, 1500}};
    forms::Grid grid{frame, "grid", {30, 30, 1940, 1440}};
    forms::Frame corner{*this, "corner", {2400, 1800, 300, 300}};
};

class AnchorLayoutTest : public testing::Test {
  protected:
    ~AnchorLayoutTest() override { desktop.UnloadAll(); }

    HeadlessDesktop desktop;
    std::shared_ptr<AnchoredForm> form = std::make_shared<AnchoredForm>(desktop);
};

TEST_F(AnchorLayoutTest, WhatStandsInAFrameFollowsTheFrame) {
    form->HandleSized({3600, 3000});
    EXPECT_EQ(form->frame.Bounds(), (Rect{120, 120, 2600, 2100}));
    EXPECT_EQ(form->grid.Bounds(), (Rect{30, 30, 2540, 2040}));
    EXPECT_EQ(form->corner.Bounds(), (Rect{3000, 2400, 300, 300}));
}

TEST_F(AnchorLayoutTest, TheFormsOwnCodeSizesItAlike) {
    form->SetClientSize({3600, 3000});
    EXPECT_EQ(form->ClientSize(), (Size{3600, 3000}));
    EXPECT_EQ(form->grid.Bounds(), (Rect{30, 30, 2540, 2040}));
    EXPECT_EQ(form->SmallestClientSize(), (Size{3000, 2400}));
}

TEST_F(AnchorLayoutTest, SizesOnTheWayLeaveNoTrace) {
    for (const Size size : {Size{9000, 7001}, Size{100, 100}, Size{0, 0}, Size{3017, 2411}, Size{3000, 2400}})
        form->HandleSized(size);
    EXPECT_EQ(form->frame.Bounds(), (Rect{120, 120, 2000, 1500}));
    EXPECT_EQ(form->grid.Bounds(), (Rect{30, 30, 1940, 1440}));
    EXPECT_EQ(form->corner.Bounds(), (Rect{2400, 1800, 300, 300}));
}

TEST_F(AnchorLayoutTest, EachControlIsPlacedOnceAndOnlyWhereItsPlaceIsAnother) {
    const CountingPeer* const grid = CountingPeer::Give(form->grid);
    const CountingPeer* const corner = CountingPeer::Give(form->corner);
    form->HandleSized({3600, 3000});
    EXPECT_EQ(grid->changes, 1);
    EXPECT_EQ(corner->changes, 1);
    form->HandleSized({3600, 3000});
    EXPECT_EQ(grid->changes, 1);
    EXPECT_EQ(corner->changes, 1);
}

TEST_F(AnchorLayoutTest, TheCurrentRowStaysInSight) {
    forms::Grid& grid = form->grid;
    grid.SetSize(101, 1);
    form->HandleSized({3000, 9000});
    grid.SetRow(25);
    ASSERT_FALSE(grid.CellBounds(25, 0).IsEmpty());
    form->HandleSized({3000, 2400});
    EXPECT_EQ(grid.Row(), 25);
    EXPECT_FALSE(grid.CellBounds(25, 0).IsEmpty());
    form->HandleSized({3000, 60000});
    EXPECT_EQ(grid.TopRow(), 1) << "all rows have room";
}

TEST_F(AnchorLayoutTest, AWindowMovesIntoTheWorkAreaAsFarAsItFits) {
    desktop.workArea = Rect{600, 300, 12000, 9000};
    const auto kept = [this](int left, int top) {
        form->MoveTo(left, top);
        form->KeepInWorkArea();
        return forms::Point{form->Bounds().left, form->Bounds().top};
    };
    const Size outer{form->Bounds().width, form->Bounds().height};
    EXPECT_EQ(kept(900, 600), (forms::Point{900, 600}));
    EXPECT_EQ(kept(11000, 8000), (forms::Point{12600 - outer.width, 9300 - outer.height}));
    EXPECT_EQ(kept(-300, 600), (forms::Point{-300, 600})) << "what reaches out on the left was put there";
    EXPECT_EQ(kept(15000, 600), (forms::Point{15000, 600})) << "another screen";
    form->SetClientSize({20000, 2400});
    EXPECT_EQ(kept(2000, 600), (forms::Point{600, 600}));
    EXPECT_EQ(form->Bounds().width, 12000);
    EXPECT_EQ(form->Bounds().height, outer.height);
}

}  // namespace
}  // namespace tavrin::tests
