#include "forms/controls/grid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/memory_table.h"
#include "support/counting_table.h"
#include "unit/forms/grid_fixture.h"

namespace tavrin::tests {
namespace {

using data::MemoryTable;
using data::Null;
using data::OleDate;
using forms::Align;

data::TablePtr Rates() {
    return std::make_shared<MemoryTable>(std::vector<std::string>{"D", "Data", "EUR", "USD"},
                                         std::vector<MemoryTable::Row>{
                                             {std::string("01/05/2003"), OleDate{37742}, 37500.0, 33000.5},
                                             {std::string("02/05/2003"), OleDate{37743}, Null{}, 0.1},
                                         });
}

std::vector<std::string> RowTexts(const forms::Grid& grid, int row) {
    std::vector<std::string> texts;
    for (int i = 0; i < grid.Columns(); ++i)
        texts.push_back(grid.TextMatrix(row, i));
    return texts;
}

using testing::ElementsAre;

// Content.

TEST_F(GridTest, ANewGridIsEmpty) {
    EXPECT_EQ(grid.Rows(), 1);
    EXPECT_EQ(grid.Columns(), 0);
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_EQ(grid.TextMatrix(0, 0), "");
}

TEST_F(GridTest, ABoundGridShowsFieldsAndRows) {
    grid.SetDataSource(Rates());
    EXPECT_EQ(grid.Rows(), 3);
    EXPECT_EQ(grid.Columns(), 4);
    EXPECT_THAT(RowTexts(grid, 0), ElementsAre("D", "Data", "EUR", "USD"));
    EXPECT_THAT(RowTexts(grid, 1), ElementsAre("01/05/2003", "01/05/2003", "37500", "33000.5"));
    EXPECT_THAT(RowTexts(grid, 2), ElementsAre("02/05/2003", "02/05/2003", "", "0.1"));
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Col(), 0);
}

TEST_F(GridTest, BindingAnEmptyTableLeavesTheHeader) {
    grid.SetDataSource(std::make_shared<MemoryTable>(std::vector<std::string>{"Nume", "Prenume"}));
    EXPECT_EQ(grid.Rows(), 1);
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_THAT(Draw().Texts(), ElementsAre("Nume", "Prenume"));
}

TEST_F(GridTest, BindingAgainGoesBackToTheFirstCell) {
    grid.SetDataSource(std::make_shared<CountingTable>(100, 3));
    grid.SetRow(90);
    grid.SetCol(2);
    grid.SetDataSource(Rates());
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Col(), 0);
    EXPECT_EQ(grid.TopRow(), 1);
}

TEST_F(GridTest, TheFormatStringSetsTitlesAndAlignments) {
    grid.SetDataSource(Rates());
    grid.SetFormatString("^Data|<D|>EUR|>USD");
    EXPECT_THAT(RowTexts(grid, 0), ElementsAre("Data", "D", "EUR", "USD"));
    EXPECT_EQ(grid.ColumnAlignment(0), Align::Center);
    EXPECT_EQ(grid.ColumnAlignment(1), Align::Left);
    EXPECT_EQ(grid.ColumnAlignment(3), Align::Right);
}

TEST_F(GridTest, TheFormatStringAddsColumns) {
    grid.SetFormatString(">Zi|Curs valutar|");
    EXPECT_EQ(grid.Columns(), 3);
    EXPECT_THAT(RowTexts(grid, 0), ElementsAre("Zi", "Curs valutar", ""));
    EXPECT_EQ(grid.Rows(), 1);
}

TEST_F(GridTest, TitlesWidthsAndAlignmentsSurviveABinding) {
    grid.SetFormatString("^Ziua|<");
    grid.SetColumnWidth(0, 1100);
    grid.SetColumnWidth(1, 0);
    grid.SetDataSource(nullptr);
    grid.SetDataSource(Rates());
    EXPECT_THAT(RowTexts(grid, 0), ElementsAre("Ziua", "", "EUR", "USD"));
    EXPECT_EQ(grid.ColumnWidth(0), 1100);
    EXPECT_EQ(grid.ColumnWidth(1), 0);
    EXPECT_EQ(grid.ColumnAlignment(0), Align::Center);
}

TEST_F(GridTest, UnbindingLeavesTheHeaderAlone) {
    grid.SetDataSource(Rates());
    grid.SetDataSource(nullptr);
    EXPECT_EQ(grid.Rows(), 1);
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_THAT(RowTexts(grid, 0), ElementsAre("D", "Data", "EUR", "USD"));
}

TEST_F(GridTest, ClearingEmptiesAllAndTheNextBindingNamesItsFields) {
    grid.SetDataSource(Rates());
    grid.SetFormatString("^Data|<D|>EUR|>USD");
    grid.Clear();
    EXPECT_EQ(grid.Rows(), 1);
    EXPECT_EQ(grid.DataSource(), nullptr);
    EXPECT_THAT(RowTexts(grid, 0), ElementsAre("", "", "", ""));
    grid.SetDataSource(Rates());
    EXPECT_THAT(RowTexts(grid, 0), ElementsAre("D", "Data", "EUR", "USD"));
}

TEST_F(GridTest, AnUnboundGridHoldsItsOwnTexts) {
    grid.SetSize(3, 2);
    grid.SetTextMatrix(0, 1, "Valoare Curs");
    grid.SetTextMatrix(2, 1, "37,500");
    EXPECT_EQ(grid.TextMatrix(0, 1), "Valoare Curs");
    EXPECT_EQ(grid.TextMatrix(2, 1), "37,500");
    EXPECT_EQ(grid.TextMatrix(1, 1), "");
    EXPECT_EQ(grid.Row(), 1);
    grid.Clear();
    EXPECT_EQ(grid.Rows(), 3);
    EXPECT_EQ(grid.TextMatrix(2, 1), "");
    EXPECT_EQ(grid.TextMatrix(0, 1), "");
}

TEST_F(GridTest, CellsOutsideTheGridAreEmptyAndCannotBeSet) {
    grid.SetSize(2, 2);
    for (const auto& [row, column] : {std::pair{-1, 0}, {0, -1}, {2, 0}, {0, 2}, {1 << 30, 1 << 30}}) {
        grid.SetTextMatrix(row, column, "x");
        EXPECT_EQ(grid.TextMatrix(row, column), "");
        EXPECT_EQ(grid.CellBounds(row, column), forms::Rect{});
        EXPECT_EQ(grid.ColumnWidth(2), 0);
    }
}

TEST_F(GridTest, ABoundCellCannotBeSet) {
    grid.SetDataSource(Rates());
    grid.SetTextMatrix(1, 2, "1");
    EXPECT_EQ(grid.TextMatrix(1, 2), "37500");
}

// The current cell.

TEST_F(GridTest, TheCurrentCellStaysWithinTheGrid) {
    grid.SetDataSource(Rates());
    grid.SetRow(99);
    grid.SetCol(99);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.Col(), 3);
    grid.SetRow(-1);
    grid.SetCol(-1);
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Col(), 0);
}

TEST_F(GridTest, TheSelectionExtendsUntilTheCellMoves) {
    grid.SetDataSource(Rates());
    grid.SetColSel(3);
    EXPECT_EQ(grid.ColSel(), 3);
    EXPECT_EQ(grid.RowSel(), 1);
    grid.SetRow(2);
    EXPECT_EQ(grid.ColSel(), 0);
    EXPECT_EQ(grid.RowSel(), 2);
    grid.SetColSel(99);
    EXPECT_EQ(grid.ColSel(), 3);
}

TEST_F(GridTest, SettingTheCellByCodeRaisesNothing) {
    grid.SetDataSource(Rates());
    grid.SetRow(2);
    grid.SetCol(1);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(clicks, 0);
}

TEST_F(GridTest, AShorterUnboundGridTakesTheCellAlong) {
    grid.SetSize(10, 3);
    grid.SetRow(9);
    grid.SetCol(2);
    grid.SetSize(4, 2);
    EXPECT_EQ(grid.Row(), 3);
    EXPECT_EQ(grid.Col(), 1);
    grid.SetSize(1, 2);
    EXPECT_EQ(grid.Row(), 0);
    grid.SetSize(0, 0);
    EXPECT_EQ(grid.Rows(), 1);
    EXPECT_EQ(grid.Col(), 0);
}

// Assistive tools.

TEST_F(GridTest, AssistiveToolsWalkTheShownCells) {
    grid.SetDataSource(Rates());
    grid.SetFormatString("^Data|<D|>EUR|>USD");
    grid.SetColumnWidth(1, 0);
    ASSERT_EQ(grid.AccessibleChildCount(), 9);
    const forms::AccessibleNode header = grid.AccessibleChild(1);
    EXPECT_EQ(header.role, forms::Role::ColumnHeader);
    EXPECT_EQ(header.name, "EUR");
    EXPECT_EQ(header.value, "");
    EXPECT_EQ(header.description, "");
    EXPECT_FALSE(header.selectable);
    const forms::AccessibleNode cell = grid.AccessibleChild(4);
    EXPECT_EQ(cell.role, forms::Role::Cell);
    EXPECT_EQ(cell.name, "EUR, 01/05/2003");
    EXPECT_EQ(cell.value, "37500");
    EXPECT_EQ(cell.description, "rândul 1 din 2");
    EXPECT_EQ(cell.bounds, grid.CellBounds(1, 2));
    EXPECT_FALSE(cell.selected);
    EXPECT_TRUE(grid.AccessibleChild(3).selected);
    EXPECT_EQ(grid.AccessibleSelectedChild(), 3);
    EXPECT_EQ(grid.AccessibleChild(9).name, "");
    EXPECT_EQ(grid.Accessible().role, forms::Role::Table);
    EXPECT_EQ(grid.Accessible().value, "01/05/2003");
}

TEST_F(GridTest, TheFirstCellOfARowIsNamedByItsColumnAlone) {
    grid.SetDataSource(Rates());
    grid.SetFormatString("^Data|<D|>EUR|>USD");
    EXPECT_EQ(grid.AccessibleChild(4).name, "Data");
    grid.SetColumnWidth(0, 0);
    EXPECT_EQ(grid.AccessibleChild(3).name, "D");
    EXPECT_EQ(grid.CellName(1, 2), "EUR, " + grid.TextMatrix(1, 1));
}

TEST_F(GridTest, TheCurrentCellOfASelectedRowReadsTheRow) {
    grid.SetDataSource(Rates());
    grid.SetFormatString("^Data|<D|>EUR|>USD");
    grid.SetColumnWidth(1, 0);
    grid.SetRow(2);
    grid.SetColSel(3);
    EXPECT_EQ(grid.AccessibleChild(6).description,
              "EUR " + grid.TextMatrix(2, 2) + ", USD " + grid.TextMatrix(2, 3) + ", rândul 2 din 2");
    EXPECT_EQ(grid.AccessibleChild(7).description, "rândul 2 din 2");
    EXPECT_EQ(grid.AccessibleChild(3).description, "rândul 1 din 2");
    grid.SetColSel(2);
    EXPECT_EQ(grid.AccessibleChild(6).description, "EUR " + grid.TextMatrix(2, 2) + ", rândul 2 din 2");
}

TEST_F(GridTest, CellsScrolledAwayAreToldSo) {
    grid.SetDataSource(std::make_shared<CountingTable>(1000, 2));
    grid.SetTopRow(500);
    EXPECT_TRUE(grid.AccessibleChild(2).invisible);
    EXPECT_FALSE(grid.AccessibleChild(2 * 500).invisible);
    grid.SetColumnWidth(0, 0);
    EXPECT_EQ(grid.AccessibleSelectedChild(), -1);
    grid.SetColumnWidth(1, 0);
    EXPECT_EQ(grid.AccessibleChildCount(), 0);
    EXPECT_EQ(grid.AccessibleChildAt({100, 1000}), -1);
}

using GridAgainstSearch = GridTest;

TEST_F(GridAgainstSearch, TheCellAtAPlaceIsTheOneThatLiesThere) {
    grid.SetDataSource(std::make_shared<CountingTable>(30, 6));
    grid.SetColumnWidth(2, 0);
    grid.SetColumnWidth(3, 1700);
    const auto searched = [&](forms::Point place) {
        for (int child = 0; child < grid.AccessibleChildCount(); ++child) {
            if (grid.AccessibleChild(child).bounds.Contains(place)) return child;
        }
        return -1;
    };
    int found = 0;
    for (const int top : {1, 12, 30}) {
        grid.SetTopRow(top);
        for (int x = 0; x < grid.Bounds().width; x += 145) {
            for (int y = 0; y < grid.Bounds().height; y += 145) {
                const int child = searched({x, y});
                found += child >= 0 ? 1 : 0;
                ASSERT_EQ(grid.AccessibleChildAt({x, y}), child) << x << "," << y << " from row " << top;
            }
        }
    }
    EXPECT_GT(found, 1000);
}

TEST_F(GridTest, ThereIsNoCellBesideTheLastRow) {
    grid.SetDataSource(std::make_shared<CountingTable>(3, 2));
    EXPECT_EQ(grid.AccessibleChildAt({500, 2500}), -1);
    EXPECT_EQ(grid.AccessibleChildAt({3000, 500}), -1);
    EXPECT_EQ(grid.AccessibleChildAt({500, 2}), -1) << "on the frame";
}

TEST_F(GridTest, FindingTheCellAtAPlaceReadsNoCell) {
    const auto table = std::make_shared<CountingTable>(100'000, 5);
    grid.SetDataSource(table);
    grid.SetTopRow(50'000);
    table->reads = 0;
    EXPECT_EQ(grid.AccessibleChildAt({100, 1000}), 50'002 * 5);
    EXPECT_EQ(table->reads, 0);
}

}  // namespace
}  // namespace tavrin::tests
