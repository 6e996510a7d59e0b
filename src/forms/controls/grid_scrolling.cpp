// What of a grid's rows and columns is in sight, and the mouse on its scroll bars.

#include <algorithm>
#include <cmath>

#include "forms/controls/grid.h"
#include "forms/model/form.h"

namespace tavrin::forms {

int Grid::RowHeight() const {
    // A multiple of 60 twips is a whole number of pixels at every usual resolution.
    constexpr int Unit = 60;
    const double lineHeight = TextFont().points * TwipsPerInch / 72 * 1.2;
    return static_cast<int>(std::ceil((lineHeight + Unit / 2.0) / Unit)) * Unit;
}

GridViewport Grid::ViewportOf(Size size) const {
    GridExtent extent;
    extent.size = size;
    extent.rowHeight = RowHeight();
    extent.rows = DataRowCount();
    extent.topRow = topRow_;
    for (const Column& column : columns_)
        extent.widths.push_back(column.width);
    extent.columnsPassed = columnsPassed_;
    return GridViewport(extent);
}

Rect Grid::CellBounds(int row, int column) const {
    return row < Rows() ? Viewport().CellArea(row, column) : Rect{};
}

int Grid::TopRow() const {
    return Viewport().topRow;
}

void Grid::SetTopRow(int row) {
    topRow_ = row;
    topRow_ = Viewport().topRow;
    Repaint();
}

void Grid::PassColumns(int count) {
    columnsPassed_ = count;
    columnsPassed_ = Viewport().columnBar.first;
    Repaint();
}

void Grid::BringIntoSight() {
    if (row_ < 1) return;
    const GridViewport view = Viewport();
    if (row_ < view.topRow) SetTopRow(row_);
    if (row_ >= view.topRow + view.wholeRows) SetTopRow(row_ - view.wholeRows + 1);
    BringColumnIntoSight();
}

void Grid::KeepInSight() {
    const GridViewport before = ViewportOf(placedSize_);
    placedSize_ = {Bounds().width, Bounds().height};
    if (row_ >= before.topRow && row_ < before.topRow + before.wholeRows) BringIntoSight();
}

void Grid::BringColumnIntoSight() {
    if (ColumnWidth(column_) == 0) return;
    const auto before = [this](int column) { return ColumnWidth(column) > 0 ? 1 : 0; };
    int place = 0;
    for (int column = 0; column < column_; ++column)
        place += before(column);
    if (place < Viewport().columnBar.first) PassColumns(place);
    // From the left, until the whole column is in sight or it is the first one.
    while (Viewport().columnBar.first < place && CellBounds(0, column_).width < ColumnWidth(column_)) {
        const int passed = Viewport().columnBar.first;
        PassColumns(passed + 1);
        if (Viewport().columnBar.first == passed) return;
    }
}

bool Grid::PressScrollBar(Point at) {
    const GridViewport view = Viewport();
    const ScrollBar* bar = view.BarAt(at);
    if (bar == nullptr) return false;
    if (!bar->IsNeeded()) return true;
    const Rect thumb = bar->Thumb();
    const int start = bar->Along({thumb.left, thumb.top});
    if (thumb.Contains(at)) {
        dragged_ = bar->direction;
        dragOffset_ = bar->Along(at) - start;
    } else {
        ScrollTo(*bar, bar->first + (bar->Along(at) < start ? -bar->shown : bar->shown));
    }
    return true;
}

void Grid::ScrollTo(const ScrollBar& bar, int first) {
    if (bar.direction == ScrollBar::Direction::Vertical) {
        SetTopRow(first + 1);
    } else {
        PassColumns(first);
    }
}

void Grid::DragThumb(Point at) {
    const GridViewport view = Viewport();
    const ScrollBar& bar = dragged_ == ScrollBar::Direction::Vertical ? view.rowBar : view.columnBar;
    ScrollTo(bar, bar.FirstAt(bar.Along(at) - dragOffset_));
}

void Grid::HandleWheel(int notches) {
    constexpr int RowsPerNotch = 3;
    SetTopRow(TopRow() - notches * RowsPerNotch);
}

}  // namespace tavrin::forms
