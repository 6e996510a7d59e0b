#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "data/memory_table.h"
#include "support/counting_table.h"
#include "unit/forms/grid_fixture.h"

namespace tavrin::tests {
namespace {

namespace scheme = forms::scheme;
using forms::Align;
using forms::Rect;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Rect Whole{0, 0, 4060, 3360};

class GridDrawingTest : public GridTest {
  protected:
    void Bind(std::size_t rows, std::size_t fields, int width = 1200) {
        table = std::make_shared<CountingTable>(rows, fields);
        grid.SetDataSource(table);
        for (int i = 0; i < grid.Columns(); ++i)
            grid.SetColumnWidth(i, width);
    }

    std::shared_ptr<CountingTable> table;
};

TEST_F(GridDrawingTest, DrawsTheHeaderAndTheRows) {
    Bind(2, 2);
    grid.SetFormatString("^Data|>EUR");
    const RecordingSurface surface = Draw();
    EXPECT_THAT(surface.Texts(), ElementsAre("Data", "EUR", "0", "1", "100", "101"));
    EXPECT_TRUE(surface.FindText("Data")->style.font.bold);
    EXPECT_EQ(surface.FindText("Data")->style.align, Align::Center);
    EXPECT_EQ(surface.FindText("101")->style.align, Align::Right);
    EXPECT_EQ(surface.FindText("101")->color, scheme::Value);
    EXPECT_TRUE(surface.IsFilled({30, 30, 4000, 300}, scheme::Face));
}

TEST_F(GridDrawingTest, TextsStandInsideTheirCells) {
    Bind(5, 3);
    const RecordingSurface surface = Draw();
    for (int row = 1; row <= 5; ++row) {
        for (int column = 0; column < 3; ++column) {
            const Rect cell = grid.CellBounds(row, column);
            const Drawn* text = surface.FindText(grid.TextMatrix(row, column));
            ASSERT_NE(text, nullptr);
            EXPECT_EQ(text->area, (Rect{cell.left + 60, cell.top, cell.width - 120, cell.height}));
        }
    }
}

TEST_F(GridDrawingTest, ReadsOnlyTheRowsInSight) {
    Bind(100000, 12, 300);
    EXPECT_EQ(table->reads, 0);
    grid.SetRow(50000);
    grid.HandleWheel(-5);
    table->reads = 0;
    Draw();
    EXPECT_GT(table->reads, 0);
    EXPECT_LE(table->reads, 11 * 12);
}

TEST_F(GridDrawingTest, ReadsOnlyTheColumnsInSight) {
    Bind(3, 60);
    grid.SetColumnWidth(1, 0);
    table->reads = 0;
    Draw();
    EXPECT_LE(table->reads, 3 * 4);
}

TEST_F(GridDrawingTest, TheCurrentRowLooksTheSameHoweverItWasChosen) {
    Bind(4, 3);
    grid.SetRow(2);
    const Rect row{30, 630, 3600, 300};
    for (const int lastColumn : {0, 1, 2}) {
        grid.SetColSel(lastColumn);
        for (forms::Control* focused :
             {static_cast<forms::Control*>(&grid), static_cast<forms::Control*>(&form->other)}) {
            focused->SetFocus();
            const RecordingSurface surface = Draw();
            EXPECT_TRUE(surface.IsFilled(row, scheme::CurrentRow)) << lastColumn;
            EXPECT_FALSE(surface.IsFilled({30, 330, 3600, 300}, scheme::CurrentRow));
            EXPECT_EQ(surface.FindText("100")->color, scheme::Value);
        }
    }
}

TEST_F(GridDrawingTest, TheFocusHasOneFrameAndTheCellALine) {
    Bind(4, 3);
    grid.SetRow(2);
    const auto isFocusFrame = [](const Drawn& each) {
        return each.kind == Drawing::Frame && each.color == scheme::Focus;
    };
    const Rect line{30, 900, 1200, 30};
    const RecordingSurface focused = Draw();
    EXPECT_TRUE(focused.HasFrame(Whole, scheme::Focus));
    EXPECT_EQ(std::ranges::count_if(focused.All(), isFocusFrame), 1);
    EXPECT_TRUE(focused.IsFilled(line, scheme::Focus));

    grid.SetColSel(2);
    EXPECT_FALSE(Draw().IsFilled(line, scheme::Focus)) << "the row as a whole is the current one";

    grid.SetColSel(0);
    form->other.SetFocus();
    const RecordingSurface left = Draw();
    EXPECT_EQ(std::ranges::count_if(left.All(), isFocusFrame), 0);
    EXPECT_FALSE(left.IsFilled(line, scheme::Focus));
    EXPECT_TRUE(left.HasFrame(Whole, scheme::Border));
}

TEST_F(GridDrawingTest, ZerosAreSetApartWhereTheyStandForNone) {
    grid.SetSize(3, 2);
    grid.SetFormatString("Zi|Curs");
    for (int row = 1; row <= 2; ++row) {
        grid.SetTextMatrix(row, 0, "0");
        grid.SetTextMatrix(row, 1, row == 1 ? "0" : "10");
    }
    grid.SetZerosApart(1);
    grid.SetRow(2);
    RecordingSurface surface = Draw();
    std::vector<Drawn> texts = surface.AllOf(Drawing::Text);
    EXPECT_FALSE(texts[2].style.font.italic) << "a column whose zeros are numbers";
    EXPECT_TRUE(texts[3].style.font.italic);
    EXPECT_EQ(texts[3].style.color, scheme::Zero);
    EXPECT_FALSE(texts[5].style.font.italic) << texts[5].text;

    grid.SetRow(1);
    surface = Draw();
    texts = surface.AllOf(Drawing::Text);
    EXPECT_TRUE(texts[3].style.font.italic);
    EXPECT_EQ(texts[3].style.color, scheme::Value) << "legible on the current row";
}

TEST_F(GridDrawingTest, ADisabledGridIsGrey) {
    Bind(2, 1);
    grid.SetEnabled(false);
    const RecordingSurface surface = Draw();
    EXPECT_EQ(surface.FindText("F0")->color, scheme::TextDisabled);
    EXPECT_EQ(surface.FindText("0")->color, scheme::TextOfCurrentRowDisabled);
    EXPECT_EQ(surface.FindText("100")->color, scheme::TextDisabled);
    EXPECT_TRUE(surface.IsFilled({30, 330, 1200, 300}, scheme::CurrentRowDisabled));
}

TEST_F(GridDrawingTest, BarsAreDrawnOnlyWhereNeeded) {
    Bind(5, 2);
    const auto isBar = [](const Drawn& each) { return each.color == scheme::FacePressed; };
    EXPECT_THAT(Draw().AllOf(Drawing::Rectangle), testing::Not(testing::Contains(testing::Truly(isBar))));
    Bind(50, 2);
    EXPECT_TRUE(Draw().IsFilled({3850, 330, 180, 3000}, scheme::FacePressed));
    Bind(50, 20);
    EXPECT_TRUE(Draw().IsFilled({30, 3150, 3820, 180}, scheme::FacePressed));
}

TEST_F(GridDrawingTest, NothingLeavesTheGridAtAnyResolution) {
    for (const auto& [rows, fields] : {std::pair{0, 0}, {0, 3}, {3, 2}, {100, 3}, {3, 60}, {100, 60}}) {
        Bind(static_cast<std::size_t>(rows), static_cast<std::size_t>(fields), 1234);
        if (rows > 50) grid.SetRow(77);
        grid.SetCol(55);
        for (const double pixelSize : {15.0, 12.0, 10.0, 7.5}) {
            const RecordingSurface surface = Draw(pixelSize);
            EXPECT_THAT(surface.Outside(Whole), IsEmpty()) << rows << " rows, " << fields << " fields";
            EXPECT_TRUE(surface.ClipsAreBalanced());
        }
    }
}

TEST_F(GridDrawingTest, CellsNeverCoverTheBars) {
    Bind(100, 60, 1234);
    for (const Drawn& text : Draw().AllOf(Drawing::Text)) {
        EXPECT_LE(text.clip.Right(), 3850);
        EXPECT_LE(text.clip.Bottom(), 3150);
    }
}

TEST_F(GridDrawingTest, RowsGrowWithTheFont) {
    Bind(3, 2);
    EXPECT_EQ(grid.RowHeight(), 300);
    for (const double points : {8.0, 9.0, 10.0, 12.0, 18.0}) {
        forms::Font font;
        font.points = points;
        grid.SetFont(font);
        RecordingSurface surface;
        EXPECT_GE(grid.RowHeight(), surface.MeasureText("Ag", font).height) << points;
        EXPECT_EQ(grid.RowHeight() % 60, 0);
    }
}

TEST_F(GridDrawingTest, AGridWithoutRoomDrawsWithoutTrouble) {
    Bind(100, 60);
    for (const forms::Size size : {forms::Size{0, 0}, {20, 20}, {400, 200}, {200, 4000}, {4000, 350}}) {
        grid.SetBounds({0, 0, size.width, size.height});
        grid.SetRow(99);
        grid.SetCol(59);
        EXPECT_THAT(Draw().Outside({0, 0, size.width, size.height}), IsEmpty()) << size.width;
        EXPECT_TRUE(Draw().ClipsAreBalanced());
    }
}

}  // namespace
}  // namespace tavrin::tests
