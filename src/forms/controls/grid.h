#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/table.h"
#include "forms/controls/grid_viewport.h"
#include "forms/model/control.h"

namespace tavrin::forms {

/// A table of texts with one fixed header row (row 0) and a current cell, which the user moves with the
/// arrows, Page Up and Down, Home, End, the mouse and the wheel. It reads the cells of a data source when it
/// paints them and copies none. Without a data source the cells are its own (SetRows, SetTextMatrix).
class Grid : public Control {
  public:
    Grid(Container& parent, std::string_view name, Rect bounds = {});

    // Content.
    /// Binds the grid to a table: one column a field, one row a row; the current cell becomes (1, 0), or (0,
    /// 0) without rows. Null unbinds it and leaves the header alone.
    void SetDataSource(data::TablePtr table);
    const data::TablePtr& DataSource() const { return table_; }
    /// Empties all cells, the header's included, and ends a binding; an unbound grid keeps its size.
    void Clear();
    /// The header and the alignment of the columns, "^Data|<D|>EUR": ^ centred, < left, > right. Adds columns
    /// where it names more than there are.
    void SetFormatString(const std::string& format);
    int Rows() const;  ///< header included
    int Columns() const;
    /// The size of an unbound grid.
    void SetSize(int rows, int columns);
    std::string TextMatrix(int row, int column) const;  ///< empty outside the grid
    void SetTextMatrix(int row, int column, std::string text);

    // Columns.
    int ColumnWidth(int column) const;  ///< twips; 0 hides the column
    void SetColumnWidth(int column, int width);
    Align ColumnAlignment(int column) const;
    void SetColumnAlignment(int column, Align align);
    /// Draws a text "0" of the column dimmer and slanted: it stands for a missing value.
    void SetZerosApart(int column);
    int RowHeight() const;  ///< twips, the same for every row; follows the font

    // The current cell and the selection from it to (RowSel, ColSel).
    int Row() const { return row_; }
    int Col() const { return column_; }
    /// The selection shrinks to the current cell; the row is scrolled into sight. Out-of-range values are
    /// clamped.
    void SetRow(int row);
    void SetCol(int column);
    int RowSel() const { return rowSel_; }
    int ColSel() const { return columnSel_; }
    void SetColSel(int column);

    /// A cell's column and the first text of its row: "EUR, 05/05/2003".
    std::string CellName(int row, int column) const;

    /// Where a cell lies in the grid, empty when it is scrolled or hidden away.
    Rect CellBounds(int row, int column) const;
    int TopRow() const;
    void SetTopRow(int row);

    /// The cells are about to be others: the grid is bound, cleared or given another size.
    std::function<void()> onContent;
    /// What is in sight may have changed: the grid has been scrolled, sized or painted anew.
    std::function<void()> onLayout;

    bool IsFocusable() const override { return true; }
    void HandleWheel(int notches) override;
    /// On a scroll bar it is a second press.
    void HandleDblClick(const MouseInput& input) override;
    void Draw(Surface& surface) const override;
    /// The selected rows under the header, in the columns that are not hidden.
    std::optional<Copied> Copy() const override;
    /// Rows `first` to `last` as text, under the header.
    std::string TextOfRows(int first, int last) const;
    AccessibleNode Accessible() const override;
    /// The cells of visible columns, row by row, the header first.
    int AccessibleChildCount() const override;
    AccessibleNode AccessibleChild(int child) const override;
    int AccessibleSelectedChild() const override;
    int AccessibleChildAt(Point place) const override;

  protected:
    KeyOutcome DefaultKeyDown(int keyCode, Modifiers modifiers) override;
    void DefaultMouseDown(const MouseInput& input) override;
    void DefaultMouseMove(const MouseInput& input) override;
    void DefaultMouseUp(const MouseInput& input) override;
    bool ClicksOnMouseUp() const override { return pressedCell_; }
    void Notify(Aspect aspect) override;

  private:
    struct Column {
        std::string header;
        /// Set by a format string or as a text; a field's name does not replace it.
        bool isTitled = false;
        int width = 960;
        Align align = Align::Left;
        bool setsZerosApart = false;
    };

    void SetTitle(int column, std::string title);
    int DataRowCount() const;
    bool IsCellAt(Point place) const;
    void MoveTo(int row, int column);
    void MoveByUser(int row, int column);
    int NeighbourColumn(int column, int step) const;
    /// Back to the first cell, after the content has changed.
    void Restart();

    // Scrolling.
    GridViewport Viewport() const { return ViewportOf({Bounds().width, Bounds().height}); }
    GridViewport ViewportOf(Size size) const;
    /// Puts that many of the columns that are not hidden to the left of what is in sight.
    void PassColumns(int count);
    void BringIntoSight();
    /// After the grid has become another size.
    void KeepInSight();
    void BringColumnIntoSight();
    bool PressScrollBar(Point at);
    void ScrollTo(const ScrollBar& bar, int first);
    void DragThumb(Point at);

    // Drawing.
    void DrawHeader(Surface& surface, const GridViewport& view) const;
    void DrawRow(Surface& surface, const GridViewport& view, int row) const;
    void DrawColumnLines(Surface& surface, const GridViewport& view, int bottomRow) const;
    void DrawCurrentCell(Surface& surface, const GridViewport& view) const;
    TextStyle StyleOfCell(int row, const GridViewport::Strip& strip, std::string_view text) const;
    bool IsWholeRowMarked() const;
    bool IsSelected(int row, int column) const;

    std::vector<int> ShownColumns() const;
    /// Where a cell stands; of the current one first what is selected beside it: "EUR 37500, rândul 3 din
    /// 300".
    std::string Describe(int row, int column) const;
    /// The number of a cell among the parts, -1 in a hidden column.
    int PartOf(int row, int column) const;

    data::TablePtr table_;
    std::vector<Column> columns_;
    std::vector<std::vector<std::string>> cells_;  ///< of an unbound grid, header excluded
    int row_ = 0;
    int column_ = 0;
    int rowSel_ = 0;
    int columnSel_ = 0;
    Size placedSize_;  ///< in which topRow_ was looked at last
    int topRow_ = 1;
    int columnsPassed_ = 0;
    /// The scroll bar whose thumb the mouse holds, and how far from the thumb's start.
    std::optional<ScrollBar::Direction> dragged_;
    int dragOffset_ = 0;
    bool pressedCell_ = false;
};

}  // namespace tavrin::forms
