// A field over a cell: where the grid scrolls, is sized, is read anew or loses its rows, the two stay one.
#include "forms/controls/cell_editor.h"

#include <gtest/gtest.h>

#include <random>

#include "support/counting_table.h"
#include "unit/forms/grid_fixture.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;

/// Forty rows of two columns, nine of them in sight, and an editor for each cell.
class CellEditorTest : public GridTest {
  protected:
    CellEditorTest() {
        grid.SetSize(41, 2);
        for (int row = 1; row <= 40; ++row)
            grid.SetTextMatrix(row, 1, std::to_string(row));
    }

    forms::Rect CellOnForm(int row) const {
        const forms::Rect cell = grid.CellBounds(row, 1);
        return {grid.Bounds().left + cell.left, grid.Bounds().top + cell.top, cell.width, cell.height};
    }

    forms::TextBox& field = form->other;
    forms::CellEditor editor{grid, field};
};

TEST_F(CellEditorTest, OpensOverItsCellWithTheKeyboardAndTheWholeText) {
    editor.Open(3, 1);
    EXPECT_TRUE(editor.IsOpen());
    EXPECT_EQ(editor.Row(), 3);
    EXPECT_EQ(field.Bounds(), CellOnForm(3));
    EXPECT_EQ(field.Text(), "3");
    EXPECT_EQ(field.SelText(), "3");
    EXPECT_TRUE(field.HasFocus());
    EXPECT_FALSE(editor.IsEdited());
}

TEST_F(CellEditorTest, OpensInSightWhereTheGridHasScrolledAway) {
    grid.SetTopRow(30);
    editor.Open(3, 1);
    EXPECT_EQ(field.Bounds(), CellOnForm(3));
    EXPECT_EQ(field.Bounds().height, grid.RowHeight());
}

TEST_F(CellEditorTest, AGridWithoutRowsHasNothingToEdit) {
    grid.SetSize(1, 2);
    field.SetVisible(false);
    editor.Open(1, 1);
    EXPECT_FALSE(editor.IsOpen());
    EXPECT_FALSE(field.Visible());
}

TEST_F(CellEditorTest, ScrollsWithItsCell) {
    editor.Open(5, 1);
    const forms::Rect before = field.Bounds();
    grid.HandleWheel(-1);
    EXPECT_EQ(field.Bounds(), CellOnForm(5));
    EXPECT_EQ(field.Bounds().top, before.top - 3 * grid.RowHeight());
}

TEST_F(CellEditorTest, AWheelOverTheFieldScrollsTheGrid) {
    editor.Open(5, 1);
    field.HandleWheel(-1);
    EXPECT_EQ(grid.TopRow(), 4);
    EXPECT_EQ(field.Bounds(), CellOnForm(5));
}

TEST_F(CellEditorTest, CoversNothingWhileItsCellIsOutOfSightAndKeepsTheKeyboard) {
    editor.Open(5, 1);
    grid.HandleWheel(-5);
    EXPECT_TRUE(field.Bounds().IsEmpty());
    EXPECT_TRUE(field.HasFocus());
    EXPECT_TRUE(editor.IsOpen());
    editor.ReturnToCell();
    EXPECT_EQ(field.Bounds(), CellOnForm(5));
    EXPECT_EQ(field.Bounds().height, grid.RowHeight());
}

TEST_F(CellEditorTest, FollowsTheThumbAndTheLowerBar) {
    grid.SetSize(41, 6);
    editor.Open(5, 1);
    for (const forms::Point at : {forms::Point{3930, 3000}, {3930, 400}, {3700, 3250}, {100, 3250}}) {
        grid.HandleMouseDown({forms::MouseButton::Left, at, {}});
        grid.HandleMouseUp({forms::MouseButton::Left, at, {}});
        EXPECT_EQ(field.Bounds(), CellOnForm(5)) << at.x << "," << at.y;
    }
}

TEST_F(CellEditorTest, GrowsAndMovesWithItsGridAndColumn) {
    editor.Open(5, 1);
    grid.SetBounds({600, 900, 4060, 2000});
    EXPECT_EQ(field.Bounds(), CellOnForm(5));
    grid.SetColumnWidth(0, 300);
    EXPECT_EQ(field.Bounds(), CellOnForm(5));
    grid.SetColumnWidth(1, 500);
    EXPECT_EQ(field.Bounds().width, 500);
    grid.SetFont({.face = "Arial", .points = 14});
    EXPECT_EQ(field.Bounds(), CellOnForm(5));
    editor.ReturnToCell();
    EXPECT_EQ(field.Bounds(), CellOnForm(5));
    EXPECT_EQ(field.Bounds().height, grid.RowHeight());
}

TEST_F(CellEditorTest, TheTextGoesToTheCellThatWasOpened) {
    editor.Open(5, 1);
    grid.SetRow(9);
    editor.Commit("new");
    EXPECT_EQ(grid.TextMatrix(5, 1), "new");
    EXPECT_EQ(grid.TextMatrix(9, 1), "9");
    EXPECT_FALSE(editor.IsOpen());
    EXPECT_FALSE(field.Visible());
}

TEST_F(CellEditorTest, ClosingLeavesTheCellAsItIs) {
    editor.Open(5, 1);
    field.ReplaceSelection("new");
    EXPECT_TRUE(editor.IsEdited());
    editor.Close();
    EXPECT_EQ(grid.TextMatrix(5, 1), "5");
    EXPECT_FALSE(editor.IsEdited());
}

TEST_F(CellEditorTest, NoOtherCellBecomesTheCurrentOneByHandMeanwhile) {
    editor.Open(5, 1);
    const forms::Rect other = grid.CellBounds(7, 0);
    ClickWithMouse(grid, {other.left + 10, other.top + 10});
    EXPECT_EQ(grid.Row(), 5);
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(editor.Row(), 5);
}

TEST_F(CellEditorTest, IsGoneWithTheCellsThatItWasOpenedIn) {
    const auto expectGone = [&](const char* what) {
        EXPECT_FALSE(editor.IsOpen()) << what;
        EXPECT_FALSE(field.Visible()) << what;
        grid.SetDataSource(nullptr);
        grid.SetSize(41, 2);
        editor.Open(5, 1);
    };
    editor.Open(5, 1);
    grid.SetDataSource(std::make_shared<CountingTable>(40, 2));
    expectGone("bound");
    grid.SetSize(3, 2);
    expectGone("sized");
    grid.Clear();
    expectGone("cleared");
}

TEST_F(CellEditorTest, StaysOverItsCellWhateverHappensToTheGrid) {
    std::mt19937 random(7);
    const auto upTo = [&](int most) { return static_cast<int>(random() % static_cast<unsigned>(most + 1)); };
    for (int step = 0; step < 3000; ++step) {
        if (!editor.IsOpen()) editor.Open(1 + upTo(39), 1);
        switch (upTo(6)) {
            case 0:
                grid.HandleWheel(upTo(8) - 4);
                break;
            case 1:
                grid.SetTopRow(upTo(50));
                break;
            case 2:
                ClickWithMouse(grid, {upTo(4060), upTo(3360)});
                break;
            case 3:
                grid.SetBounds({upTo(900), upTo(900), 600 + upTo(4000), 600 + upTo(4000)});
                break;
            case 4:
                grid.SetColumnWidth(upTo(1), upTo(3000));
                break;
            case 5:
                editor.ReturnToCell();
                break;
            default:
                editor.Open(1 + upTo(39), 1);
                break;
        }
        ASSERT_EQ(field.Bounds(), CellOnForm(editor.Row())) << step;
        ASSERT_EQ(grid.Row(), editor.Row()) << step;
    }
}

}  // namespace
}  // namespace tavrin::tests
