// How a grid looks.

#include <algorithm>
#include <cmath>

#include "forms/form.h"
#include "forms/grid.h"

namespace tavrin::forms {

namespace {

constexpr int TextInset = 60;

int Hairline(const Surface& surface) {
    return std::max(1, static_cast<int>(std::lround(surface.PixelSize())));
}

void DrawCellLines(Surface& surface, const Rect& cell) {
    const int hairline = Hairline(surface);
    surface.FillRectangle({cell.Right() - hairline, cell.top, hairline, cell.height}, scheme::GridLine);
    surface.FillRectangle({cell.left, cell.Bottom() - hairline, cell.width, hairline}, scheme::GridLine);
}

}  // namespace

void Grid::Draw(Surface& surface) const {
    const Rect area{0, 0, Bounds().width, Bounds().height};
    surface.FillRectangle(area, BackColor());
    const GridViewport view = Viewport();
    {
        const ClipScope clip(surface, {view.header.left, view.header.top, view.header.width,
                                       view.header.height + view.cells.height});
        DrawHeader(surface, view);
        const int rows = (view.cells.height + rowHeight_ - 1) / rowHeight_;
        for (int row = topRow_; row < std::min(Rows(), topRow_ + rows); ++row)
            DrawRow(surface, view, row);
    }
    DrawScrollBars(surface, view);
    surface.DrawFrame(area, HasFocus() ? scheme::Focus : scheme::Border);
}

void Grid::DrawHeader(Surface& surface, const GridViewport& view) const {
    surface.FillRectangle(view.header, scheme::Face);
    TextStyle style;
    style.font = TextFont();
    style.font.bold = true;
    for (int column = leftColumn_; column < Columns(); ++column) {
        const Rect cell = CellBounds(0, column);
        if (cell.IsEmpty()) continue;
        style.align = ColumnAlignment(column);
        surface.DrawText(TextMatrix(0, column), cell.Inset(TextInset, 0), style);
        DrawCellLines(surface, cell);
    }
}

void Grid::DrawRow(Surface& surface, const GridViewport& view, int row) const {
    TextStyle style;
    style.font = TextFont();
    style.color = IsEffectivelyEnabled() ? ForeColor() : scheme::TextDisabled;
    const int top = view.cells.top + (row - topRow_) * rowHeight_;
    int left = view.cells.left;
    for (int column = leftColumn_; column < Columns() && left < view.cells.Right(); ++column) {
        const Rect cell{left, top, ColumnWidth(column), rowHeight_};
        left += cell.width;
        if (cell.width == 0) continue;
        if (IsSelected(row, column))
            surface.FillRectangle(cell, HasFocus() ? scheme::Selection : scheme::Face);
        style.align = ColumnAlignment(column);
        surface.DrawText(TextMatrix(row, column), cell.Inset(TextInset, 0), style);
        DrawCellLines(surface, cell);
        if (row == row_ && column == column_ && HasFocus()) surface.DrawFrame(cell, scheme::Focus);
    }
}

bool Grid::IsSelected(int row, int column) const {
    const auto [firstRow, lastRow] = std::minmax(row_, rowSel_);
    const auto [firstColumn, lastColumn] = std::minmax(column_, columnSel_);
    return row_ > 0 && row >= firstRow && row <= lastRow && column >= firstColumn && column <= lastColumn;
}

void Grid::DrawScrollBars(Surface& surface, const GridViewport& view) const {
    const auto draw = [&](const ScrollBar& bar, bool vertical) {
        if (!bar.IsNeeded()) return;
        surface.FillRectangle(bar.track, scheme::FacePressed);
        surface.FillRectangle(bar.Thumb(vertical).Inset(30), scheme::Border);
    };
    draw(view.rows, true);
    draw(view.columns, false);
}

}  // namespace tavrin::forms
