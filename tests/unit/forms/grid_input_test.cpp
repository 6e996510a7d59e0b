// Keys, mouse and wheel on a grid.
#include <gtest/gtest.h>

#include "support/counting_table.h"
#include "unit/forms/grid_fixture.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using forms::KeyOutcome;
using forms::MouseButton;
using forms::Point;

/// A hundred rows, five columns of which the second is hidden, three of them in sight.
class GridInputTest : public GridTest {
  protected:
    GridInputTest() {
        grid.SetDataSource(std::make_shared<CountingTable>(100, 5));
        for (int i = 0; i < 5; ++i)
            grid.SetColumnWidth(i, i == 1 ? 0 : 1200);
    }

    Point Middle(int row, int column) const {
        const forms::Rect cell = grid.CellBounds(row, column);
        return {cell.left + cell.width / 2, cell.top + cell.height / 2};
    }
    void Press(Point at) { grid.HandleMouseDown({MouseButton::Left, at, {}}); }
    void Drag(Point at) { grid.HandleMouseMove({MouseButton::Left, at, {}}); }
    void Release(Point at) { grid.HandleMouseUp({MouseButton::Left, at, {}}); }

    void ExpectCell(int row, int column) const {
        EXPECT_EQ(grid.Row(), row);
        EXPECT_EQ(grid.Col(), column);
    }

    static constexpr int RowsInSight = 9;
    Point rowTrackEnd{3930, 3100};
    Point rowThumb{3930, 400};
};

TEST_F(GridInputTest, ArrowsWalkAndStopAtTheEdges) {
    keyboard.Press(key::Up);
    keyboard.Press(key::Left);
    ExpectCell(1, 0);
    EXPECT_EQ(changes, 0);
    keyboard.Press(key::Down);
    ExpectCell(2, 0);
    EXPECT_EQ(changes, 1);
    keyboard.Press(key::Right);
    ExpectCell(2, 2);
    keyboard.Press(key::Left);
    ExpectCell(2, 0);
    grid.SetRow(100);
    keyboard.Press(key::Down);
    ExpectCell(100, 0);
}

TEST_F(GridInputTest, HomeAndEndGoAcrossAndWithControlUpAndDown) {
    keyboard.Press(key::End);
    ExpectCell(1, 4);
    keyboard.Press(key::End, {.control = true});
    ExpectCell(100, 4);
    keyboard.Press(key::Home);
    ExpectCell(100, 0);
    keyboard.Press(key::Home, {.control = true});
    ExpectCell(1, 0);
}

TEST_F(GridInputTest, PageKeysMoveByWhatIsInSight) {
    keyboard.Press(key::PageDown);
    ExpectCell(1 + RowsInSight, 0);
    keyboard.Press(key::PageUp);
    ExpectCell(1, 0);
    keyboard.Press(key::PageUp);
    ExpectCell(1, 0);
}

TEST_F(GridInputTest, TheCurrentRowIsAlwaysInSight) {
    for (int i = 0; i < 30; ++i) {
        keyboard.Press(key::Down);
        EXPECT_EQ(grid.CellBounds(grid.Row(), 0).height, grid.RowHeight()) << grid.Row();
    }
    EXPECT_EQ(grid.TopRow(), 31 - RowsInSight + 1);
    keyboard.Press(key::Home, {.control = true});
    EXPECT_EQ(grid.TopRow(), 1);
    grid.SetRow(100);
    EXPECT_EQ(grid.TopRow(), 100 - RowsInSight + 1);
}

TEST_F(GridInputTest, TheCurrentColumnIsAlwaysInSight) {
    EXPECT_TRUE(grid.CellBounds(1, 4).IsEmpty() || grid.CellBounds(1, 4).width < 1200);
    keyboard.Press(key::End);
    EXPECT_EQ(grid.CellBounds(1, 4).width, 1200);
    EXPECT_TRUE(grid.CellBounds(1, 0).IsEmpty());
    keyboard.Press(key::Home);
    EXPECT_EQ(grid.CellBounds(1, 0).width, 1200);
}

TEST_F(GridInputTest, SixtyColumnsCanAllBeReached) {
    grid.SetDataSource(std::make_shared<CountingTable>(3, 60));
    grid.SetColumnWidth(1, 1200);
    for (int column = 0; column < 60; ++column) {
        ExpectCell(1, column);
        EXPECT_EQ(grid.CellBounds(1, column).width, grid.ColumnWidth(column)) << column;
        keyboard.Press(key::Right);
    }
    for (int column = 59; column >= 0; --column) {
        EXPECT_EQ(grid.CellBounds(1, column).width, grid.ColumnWidth(column)) << column;
        keyboard.Press(key::Left);
    }
}

TEST_F(GridInputTest, KeysOfOthersPass) {
    for (const int code : {key::Enter, key::Escape, key::Space, key::Delete, static_cast<int>('A')})
        EXPECT_EQ(form->HandleKeyDown(code, {}), KeyOutcome::Default) << code;
    EXPECT_EQ(form->HandleKeyDown(key::Down, {.alt = true}), KeyOutcome::Default);
    ExpectCell(1, 0);
}

TEST_F(GridInputTest, HandlersSeeTheRowBeforeTheMove) {
    int seen = 0;
    grid.onKeyDown = [&](int&, forms::Modifiers) { seen = grid.Row(); };
    keyboard.Press(key::Down);
    EXPECT_EQ(seen, 1);
    ExpectCell(2, 0);
}

TEST_F(GridInputTest, KeysInAnEmptyGridDoNothing) {
    grid.SetDataSource(std::make_shared<CountingTable>(0, 0));
    for (const int code :
         {key::Up, key::Down, key::Left, key::Right, key::Home, key::End, key::PageUp, key::PageDown}) {
        keyboard.Press(code);
        keyboard.Press(code, {.control = true});
    }
    ExpectCell(0, 0);
    EXPECT_EQ(changes, 0);
}

TEST_F(GridInputTest, APressTakesTheCellAndTheReleaseClicks) {
    Press(Middle(3, 2));
    ExpectCell(3, 2);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(clicks, 0);
    Release(Middle(3, 2));
    EXPECT_EQ(clicks, 1);
}

TEST_F(GridInputTest, AReleaseOutsideIsNoClick) {
    Press(Middle(3, 2));
    Release({-100, -100});
    EXPECT_EQ(clicks, 0);
    ExpectCell(3, 2);
}

TEST_F(GridInputTest, TheHeaderAndTheEmptySpaceAreDeaf) {
    grid.SetDataSource(std::make_shared<CountingTable>(3, 2));
    for (const Point at : {Middle(0, 1), Point{3000, 600}, Point{500, 2500}}) {
        Press(at);
        Release(at);
        ExpectCell(1, 0);
    }
    EXPECT_EQ(clicks, 0);
}

TEST_F(GridInputTest, OtherButtonsSelectNothing) {
    grid.HandleMouseDown({MouseButton::Right, Middle(3, 2), {}});
    ExpectCell(1, 0);
}

TEST_F(GridInputTest, ADoubleClickCountsEverywhereButOnTheScrollBars) {
    int doubleClicks = 0;
    grid.onDblClick = [&] { ++doubleClicks; };
    grid.HandleDblClick({MouseButton::Left, Middle(3, 2), {}});
    EXPECT_EQ(doubleClicks, 1);
    grid.HandleDblClick({MouseButton::Left, Middle(0, 0), {}});
    EXPECT_EQ(doubleClicks, 2) << "the header";
    grid.HandleDblClick({MouseButton::Left, {5, 5}, {}});
    EXPECT_EQ(doubleClicks, 3) << "the frame";
    grid.HandleDblClick({MouseButton::Left, rowTrackEnd, {}});
    EXPECT_EQ(grid.TopRow(), 1 + RowsInSight);
    grid.HandleDblClick({MouseButton::Left, {3700, 3250}, {}});
    EXPECT_TRUE(grid.CellBounds(1, 0).IsEmpty());
    EXPECT_EQ(doubleClicks, 3) << "a bar that is pressed quickly scrolls on";
    grid.SetDataSource(std::make_shared<CountingTable>(3, 2));
    grid.HandleDblClick({MouseButton::Left, {500, 2500}, {}});
    EXPECT_EQ(doubleClicks, 4) << "beneath the last row";
}

TEST_F(GridInputTest, TheWheelScrollsWithoutMovingTheCell) {
    grid.HandleWheel(-2);
    EXPECT_EQ(grid.TopRow(), 7);
    ExpectCell(1, 0);
    grid.HandleWheel(10);
    EXPECT_EQ(grid.TopRow(), 1);
    grid.HandleWheel(-1000);
    EXPECT_EQ(grid.TopRow(), 100 - RowsInSight + 1);
}

TEST_F(GridInputTest, APressBesideTheThumbPages) {
    Press(rowTrackEnd);
    Release(rowTrackEnd);
    EXPECT_EQ(grid.TopRow(), 1 + RowsInSight);
    EXPECT_EQ(clicks, 0);
    ExpectCell(1, 0);
    Press({rowThumb.x, 340});
    Release({rowThumb.x, 340});
    EXPECT_EQ(grid.TopRow(), 1);
}

TEST_F(GridInputTest, TheThumbIsDragged) {
    Press(rowThumb);
    Drag({rowThumb.x, rowThumb.y + 1200});
    EXPECT_NEAR(grid.TopRow(), 48, 8);
    Drag({rowThumb.x + 5000, rowThumb.y + 100000});
    EXPECT_EQ(grid.TopRow(), 100 - RowsInSight + 1);
    Drag({rowThumb.x, rowThumb.y - 100000});
    EXPECT_EQ(grid.TopRow(), 1);
    Drag({rowThumb.x, rowThumb.y + 1200});
    Release({rowThumb.x, rowThumb.y + 1200});
    const int top = grid.TopRow();
    Drag({rowThumb.x, rowThumb.y});
    EXPECT_EQ(grid.TopRow(), top);
    EXPECT_EQ(clicks, 0);
}

TEST_F(GridInputTest, AThumbThatLostTheMouseStays) {
    Press(rowThumb);
    grid.HandleCaptureLost();
    Drag({rowThumb.x, rowThumb.y + 1200});
    EXPECT_EQ(grid.TopRow(), 1);
}

TEST_F(GridInputTest, TheLowerBarScrollsWholeColumns) {
    const Point end{3700, 3250};
    Press(end);
    Release(end);
    EXPECT_TRUE(grid.CellBounds(1, 0).IsEmpty());
    EXPECT_EQ(grid.CellBounds(1, 2).left, 30);
    EXPECT_EQ(grid.CellBounds(1, 4).width, 1200);
    Press({3000, 3250});
    Drag({-5000, 3250});
    Release({-5000, 3250});
    EXPECT_EQ(grid.CellBounds(1, 0).left, 30);
}

TEST_F(GridInputTest, RowsThatAreMarkedWholeStaySoOnTheWay) {
    grid.SetCol(0);
    grid.SetColSel(4);
    keyboard.Press(key::Down);
    EXPECT_EQ(grid.ColSel(), 4);
    EXPECT_EQ(grid.RowSel(), 2);
    keyboard.Press(key::Right);
    EXPECT_EQ(grid.ColSel(), 2);
}

TEST_F(GridInputTest, ResizingKeepsTheScrollPositionUsable) {
    grid.SetTopRow(100);
    grid.SetBounds({200, 300, 4060, 8000});
    EXPECT_GT(grid.CellBounds(100, 0).height, 0);
    EXPECT_EQ(grid.TopRow(), 100 - (8000 - 60 - 300 - 180) / 300 + 1);
}

TEST_F(GridInputTest, AHandlerMayBindTheGridAnew) {
    grid.onChange = [this] { grid.SetDataSource(std::make_shared<CountingTable>(1, 1)); };
    keyboard.Press(key::PageDown);
    ExpectCell(1, 0);
    EXPECT_EQ(grid.Rows(), 2);
}

TEST_F(GridInputTest, AHandlerMayCloseTheWindow) {
    grid.onChange = [this] { form->Unload(); };
    Press(Middle(3, 0));
    EXPECT_FALSE(form->IsLoaded());
    Release({100, 100});
    EXPECT_EQ(clicks, 0);
}

}  // namespace
}  // namespace tavrin::tests
