#include "forms/controls/grid_viewport.h"

#include <gtest/gtest.h>

namespace tavrin::tests {
namespace {

using forms::GridExtent;
using forms::GridViewport;
using forms::Point;
using forms::Rect;
using forms::ScrollBar;

constexpr int Frame = GridViewport::Frame;
constexpr int Bar = ScrollBar::Thickness;

/// Room for the header and ten rows of 300, 3000 wide.
GridExtent Extent(int rows, std::vector<int> widths) {
    GridExtent extent;
    extent.size = {3000 + 2 * Frame, 11 * 300 + 2 * Frame};
    extent.rowHeight = 300;
    extent.rows = rows;
    extent.widths = std::move(widths);
    return extent;
}

TEST(GridViewportTest, WhatFitsNeedsNoBars) {
    const GridViewport view(Extent(10, {1000, 2000}));
    EXPECT_FALSE(view.rowBar.IsNeeded());
    EXPECT_FALSE(view.columnBar.IsNeeded());
    EXPECT_TRUE(view.rowBar.track.IsEmpty());
    EXPECT_EQ(view.header, (Rect{Frame, Frame, 3000, 300}));
    EXPECT_EQ(view.cells, (Rect{Frame, Frame + 300, 3000, 3000}));
    EXPECT_EQ(view.wholeRows, 10);
}

TEST(GridViewportTest, OneRowTooManyNeedsABar) {
    const GridViewport view(Extent(11, {1000}));
    EXPECT_TRUE(view.rowBar.IsNeeded());
    EXPECT_EQ(view.rowBar.Last(), 1);
    EXPECT_EQ(view.rowBar.track, (Rect{Frame + 3000 - Bar, Frame + 300, Bar, 3000}));
    EXPECT_EQ(view.cells.width, 3000 - Bar);
}

TEST(GridViewportTest, ABarMayMakeTheOtherNecessary) {
    const GridViewport tall(Extent(11, {1000, 2000}));
    EXPECT_TRUE(tall.rowBar.IsNeeded());
    EXPECT_TRUE(tall.columnBar.IsNeeded());
    const GridViewport wide(Extent(10, {1000, 2010}));
    EXPECT_TRUE(wide.columnBar.IsNeeded());
    EXPECT_TRUE(wide.rowBar.IsNeeded());
    EXPECT_EQ(wide.wholeRows, 9);
    EXPECT_EQ(wide.rowBar.track.Bottom(), wide.columnBar.track.top);
    EXPECT_EQ(wide.columnBar.track.Right(), wide.rowBar.track.left);
}

TEST(GridViewportTest, HiddenColumnsTakeNoRoom) {
    GridExtent extent = Extent(1, {1000, 0, 500, 0, 700});
    const GridViewport view(extent);
    ASSERT_EQ(view.columns.size(), 3U);
    EXPECT_EQ(view.columns[1].column, 2);
    EXPECT_EQ(view.columns[1].left, Frame + 1000);
    EXPECT_EQ(view.columns[2].left, Frame + 1500);
    EXPECT_TRUE(view.CellArea(1, 1).IsEmpty());
}

TEST(GridViewportTest, ScrollPositionsBeyondTheEndAreDrawnBack) {
    GridExtent extent = Extent(30, {1000, 1000, 1000, 1000, 1000});
    extent.topRow = 1000;
    extent.columnsPassed = 1000;
    const GridViewport view(extent);
    EXPECT_EQ(view.topRow, 30 - view.wholeRows + 1);
    EXPECT_EQ(view.columns.front().column, 3);
    EXPECT_EQ(view.columns.back().Right(), Frame + 2000);
    extent.topRow = -5;
    extent.columnsPassed = -5;
    EXPECT_EQ(GridViewport(extent).topRow, 1);
    EXPECT_EQ(GridViewport(extent).columns.front().column, 0);
}

TEST(GridViewportTest, AColumnWiderThanTheGridIsShownAlone) {
    GridExtent extent = Extent(1, {500, 9000, 500});
    extent.columnsPassed = 1;
    const GridViewport view(extent);
    ASSERT_EQ(view.columns.size(), 1U);
    EXPECT_EQ(view.columns.front().column, 1);
    EXPECT_EQ(view.CellArea(1, 1).width, 3000);
    extent.widths = {500, 9000};
    extent.columnsPassed = 5;
    EXPECT_EQ(GridViewport(extent).columns.front().column, 1);
}

TEST(GridViewportTest, RowsAreShownWholeOrNotAtAll) {
    for (const int columnWidth : {1000, 4000}) {
        for (int spare = 0; spare < 300; spare += 60) {
            GridExtent extent = Extent(30, {columnWidth, 500});
            extent.size.height += spare;
            const GridViewport view(extent);
            EXPECT_EQ(view.columnBar.IsNeeded(), columnWidth == 4000);
            EXPECT_EQ(view.cells.height, view.wholeRows * 300) << spare;
            EXPECT_EQ(view.BottomRow(), view.topRow + view.wholeRows - 1);
            EXPECT_EQ(view.RowAt(view.cells.Bottom() - 1), view.BottomRow());
            EXPECT_EQ(view.RowAt(view.cells.Bottom()), -1);
        }
    }
}

TEST(GridViewportTest, TheHeaderRunsOnAboveTheScrollBar) {
    const GridViewport scrolled(Extent(30, {1000}));
    EXPECT_EQ(scrolled.headerBand, (Rect{Frame, Frame, 3000, 300}));
    EXPECT_EQ(scrolled.rowBar.track.top, scrolled.headerBand.Bottom());
    EXPECT_EQ(scrolled.header.width, 3000 - Bar);
}

TEST(GridViewportTest, CellsAreCutWhereTheAreaEnds) {
    GridExtent extent = Extent(30, {2000, 2000});
    const GridViewport view(extent);
    EXPECT_EQ(view.CellArea(0, 0), (Rect{Frame, Frame, 2000, 300}));
    EXPECT_EQ(view.CellArea(1, 1), (Rect{Frame + 2000, Frame + 300, 1000 - Bar, 300}));
    const Rect last = view.CellArea(view.BottomRow(), 0);
    EXPECT_EQ(last.Bottom(), view.cells.Bottom());
    EXPECT_EQ(last.height, 300);
    EXPECT_TRUE(view.CellArea(view.BottomRow() + 1, 0).IsEmpty());
}

TEST(GridViewportTest, PlacesNameTheirCells) {
    GridExtent extent = Extent(30, {1000, 0, 500});
    extent.topRow = 7;
    const GridViewport view(extent);
    EXPECT_EQ(view.RowAt(Frame + 299), -1);
    EXPECT_EQ(view.RowAt(Frame + 300), 7);
    EXPECT_EQ(view.RowAt(Frame + 899), 8);
    EXPECT_EQ(view.RowAt(100000), -1);
    EXPECT_EQ(view.ColumnAt(Frame), 0);
    EXPECT_EQ(view.ColumnAt(Frame + 1000), 2);
    EXPECT_EQ(view.ColumnAt(Frame + 1500), -1);
    EXPECT_EQ(view.ColumnAt(0), -1);
}

TEST(GridViewportTest, NoRoomAndNoColumnsAreNoTrouble) {
    GridExtent extent = Extent(100000, {1000});
    for (const forms::Size size : {forms::Size{0, 0}, {10, 10}, {100, 350}, {3000, 100}}) {
        extent.size = size;
        const GridViewport view(extent);
        EXPECT_GE(view.wholeRows, 1);
        EXPECT_GE(view.cells.height, 0);
        EXPECT_GE(view.cells.width, 0);
    }
    EXPECT_TRUE(GridViewport(GridExtent{}).columns.empty());
    EXPECT_TRUE(GridViewport(Extent(5, {0, 0})).columns.empty());
}

TEST(ScrollBarTest, TheThumbShowsTheShareAndThePlace) {
    ScrollBar bar{ScrollBar::Direction::Vertical, {100, 200, Bar, 4000}, 40, 10, 0};
    EXPECT_EQ(bar.Thumb(), (Rect{100, 200, Bar, 1000}));
    bar.first = 30;
    EXPECT_EQ(bar.Thumb(), (Rect{100, 3200, Bar, 1000}));
    bar.first = 15;
    EXPECT_EQ(bar.Thumb().top, 1700);
    bar.direction = ScrollBar::Direction::Horizontal;
    bar.track = {100, 200, 4000, Bar};
    EXPECT_EQ(bar.Thumb(), (Rect{1600, 200, 1000, Bar}));
}

TEST(ScrollBarTest, TheThumbNeverGetsTooSmallToGrabNorLeavesTheTrack) {
    ScrollBar bar{ScrollBar::Direction::Vertical, {0, 0, Bar, 4000}, 100000, 10, 99990};
    EXPECT_GE(bar.Thumb().height, 300);
    EXPECT_EQ(bar.Thumb().Bottom(), 4000);
    bar.first = 1 << 30;
    EXPECT_EQ(bar.Thumb().Bottom(), 4000);
}

TEST(ScrollBarTest, AThumbsPlaceLeadsBackToTheStep) {
    ScrollBar bar{ScrollBar::Direction::Vertical, {0, 500, Bar, 4000}, 40, 10, 0};
    for (int first = 0; first <= bar.Last(); ++first) {
        bar.first = first;
        EXPECT_EQ(bar.FirstAt(bar.Thumb().top - bar.track.top), first);
    }
    EXPECT_EQ(bar.FirstAt(-100000), 0);
    EXPECT_EQ(bar.FirstAt(100000), 30);
}

}  // namespace
}  // namespace tavrin::tests
