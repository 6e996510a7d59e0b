// How a grid divides its area and what of its rows and columns is in sight.

#include <algorithm>

#include "forms/form.h"
#include "forms/grid.h"

namespace tavrin::forms {

GridViewport Grid::Viewport() const {
    const int frame = 15;  // one pixel at 96 DPI keeps the cells off the frame
    Rect area = Rect{0, 0, Bounds().width, Bounds().height}.Inset(frame);
    int total = 0;
    for (const Column& column : columns_)
        total += column.width;

    GridViewport view;
    const int rowsIfAll = std::max(0, (area.height - rowHeight_) / rowHeight_);
    const bool verticalBar = DataRowCount() > rowsIfAll;
    if (verticalBar) area.width = std::max(0, area.width - GridViewport::BarThickness);
    const bool horizontalBar = total > area.width;
    if (horizontalBar) area.height = std::max(0, area.height - GridViewport::BarThickness);

    view.header = {area.left, area.top, area.width, rowHeight_};
    view.cells = {area.left, area.top + rowHeight_, area.width, std::max(0, area.height - rowHeight_)};
    view.rowsInSight = view.cells.height / rowHeight_;
    int scrolled = 0;
    for (int i = 0; i < leftColumn_; ++i)
        scrolled += ColumnWidth(i);
    view.rows = {{view.cells.Right(), view.cells.top, GridViewport::BarThickness, view.cells.height},
                 DataRowCount(),
                 view.rowsInSight,
                 topRow_ - 1};
    view.columns = {{view.cells.left, view.cells.Bottom(), view.cells.width, GridViewport::BarThickness},
                    total,
                    view.cells.width,
                    scrolled};
    return view;
}

Rect Grid::CellBounds(int row, int column) const {
    const GridViewport view = Viewport();
    if (row < 0 || row >= Rows() || column < leftColumn_ || column >= Columns() || ColumnWidth(column) == 0)
        return {};
    int left = view.cells.left;
    for (int i = leftColumn_; i < column; ++i)
        left += ColumnWidth(i);
    const int width = std::min(ColumnWidth(column), view.cells.Right() - left);
    if (row == 0) return {left, view.header.top, std::max(0, width), rowHeight_};
    const int top = view.cells.top + (row - topRow_) * rowHeight_;
    if (row < topRow_ || top >= view.cells.Bottom() || width <= 0) return {};
    return {left, top, width, std::min(rowHeight_, view.cells.Bottom() - top)};
}

int Grid::ColumnAt(int x) const {
    for (int i = leftColumn_; i < Columns(); ++i) {
        const Rect header = CellBounds(0, i);
        if (!header.IsEmpty() && x >= header.left && x < header.Right()) return i;
    }
    return -1;
}

void Grid::SetTopRow(int row) {
    ScrollTo(row);
}

void Grid::ScrollTo(int topRow) {
    const int last = Viewport().rows.Last() + 1;
    const int wanted = std::clamp(topRow, 1, last);
    if (wanted == topRow_) return;
    topRow_ = wanted;
    Repaint();
}

int Grid::LastLeftColumn() const {
    int room = Viewport().cells.width;
    int column = Columns();
    while (column > 0 && ColumnWidth(column - 1) <= room)
        room -= ColumnWidth(--column);
    return std::min(column, std::max(0, Columns() - 1));
}

void Grid::ScrollColumnsTo(int leftColumn) {
    leftColumn_ = std::clamp(leftColumn, 0, LastLeftColumn());
    Repaint();
}

void Grid::BringIntoSight() {
    if (row_ < 1) return;
    const int rows = std::max(1, Viewport().rowsInSight);
    if (row_ < topRow_) ScrollTo(row_);
    if (row_ >= topRow_ + rows) ScrollTo(row_ - rows + 1);
    if (column_ < leftColumn_) leftColumn_ = column_;
    while (leftColumn_ < column_ && ColumnWidth(column_) > 0 &&
           CellBounds(0, column_).width < ColumnWidth(column_)) {
        ++leftColumn_;
    }
}

bool Grid::PressScrollBar(Point at) {
    const GridViewport view = Viewport();
    if (view.rows.IsNeeded() && view.rows.track.Contains(at)) {
        const Rect thumb = view.rows.Thumb(true);
        if (thumb.Contains(at)) {
            drag_ = Drag::Vertical;
            dragOffset_ = at.y - thumb.top;
        } else {
            ScrollTo(topRow_ + (at.y < thumb.top ? -view.rowsInSight : view.rowsInSight));
        }
        return true;
    }
    if (view.columns.IsNeeded() && view.columns.track.Contains(at)) {
        const Rect thumb = view.columns.Thumb(false);
        if (thumb.Contains(at)) {
            drag_ = Drag::Horizontal;
            dragOffset_ = at.x - thumb.left;
        } else {
            ScrollColumnsTo(leftColumn_ + (at.x < thumb.left ? -1 : 1));
        }
        return true;
    }
    return false;
}

void Grid::DragThumb(Point at) {
    const GridViewport view = Viewport();
    if (drag_ == Drag::Vertical) {
        ScrollTo(view.rows.FirstAt(at.y - dragOffset_, true) + 1);
        return;
    }
    const int wanted = view.columns.FirstAt(at.x - dragOffset_, false);
    int column = 0;
    for (int passed = 0; column < Columns() && passed + ColumnWidth(column) / 2 < wanted; ++column) {
        passed += ColumnWidth(column);
    }
    ScrollColumnsTo(column);
}

}  // namespace tavrin::forms
