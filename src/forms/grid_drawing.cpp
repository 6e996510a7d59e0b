// How a grid looks.

#include <algorithm>

#include "forms/form.h"
#include "forms/grid.h"
#include "forms/look.h"

namespace tavrin::forms {

namespace {

constexpr int ThumbInset = 30;

Rect CellOf(const Rect& line, const GridViewport::Strip& strip) {
    return {strip.left, line.top, strip.width, line.height};
}

void DrawScrollBar(Surface& surface, const ScrollBar& bar) {
    if (bar.track.IsEmpty()) return;
    surface.FillRectangle(bar.track, scheme::FacePressed);
    if (bar.IsNeeded()) surface.FillRectangle(bar.Thumb().Inset(ThumbInset), scheme::Border);
}

}  // namespace

void Grid::Draw(Surface& surface) const {
    surface.FillRectangle(look::AreaOf(*this), BackColor());
    const GridViewport view = Viewport();
    {
        const ClipScope clip(surface, view.header);
        DrawHeader(surface, view);
    }
    {
        const ClipScope clip(surface, view.cells);
        const int bottomRow = std::min(view.BottomRow(), Rows() - 1);
        for (int row = view.topRow; row <= bottomRow; ++row)
            DrawRow(surface, view, row);
        DrawColumnLines(surface, view, bottomRow);
        DrawCurrentCell(surface, view);
    }
    DrawScrollBar(surface, view.rowBar);
    DrawScrollBar(surface, view.columnBar);
    look::DrawBorder(surface, *this);
}

void Grid::DrawHeader(Surface& surface, const GridViewport& view) const {
    surface.FillRectangle(view.header, scheme::Face);
    TextStyle style;
    style.font = TextFont();
    style.font.bold = true;
    if (!IsEffectivelyEnabled()) style.color = scheme::TextDisabled;
    for (const GridViewport::Strip& strip : view.columns) {
        const Rect cell = CellOf(view.header, strip);
        style.align = ColumnAlignment(strip.column);
        surface.DrawText(TextMatrix(0, strip.column), cell.Inset(look::Padding, 0), style);
        look::DrawRightEdge(surface, cell, scheme::Border);
    }
    look::DrawBottomEdge(surface, view.header, scheme::Border);
}

void Grid::DrawRow(Surface& surface, const GridViewport& view, int row) const {
    const Rect line = view.RowArea(row);
    const int right = std::min(view.cells.Right(), view.columns.empty() ? 0 : view.columns.back().Right());
    const Rect filled{line.left, line.top, right - line.left, line.height};
    if (row == row_) surface.FillRectangle(filled, scheme::CurrentRow);
    TextStyle style = look::TextStyleOf(*this);
    for (const GridViewport::Strip& strip : view.columns) {
        const Rect cell = CellOf(line, strip);
        if (IsSelected(row, strip.column))
            surface.FillRectangle(cell, HasFocus() ? scheme::Selection : scheme::SelectionWithoutFocus);
        style.align = ColumnAlignment(strip.column);
        surface.DrawText(TextMatrix(row, strip.column), cell.Inset(look::Padding, 0), style);
    }
    look::DrawBottomEdge(surface, filled, scheme::GridLine);
}

void Grid::DrawColumnLines(Surface& surface, const GridViewport& view, int bottomRow) const {
    const int height = std::min(view.cells.height, (bottomRow - view.topRow + 1) * view.rowHeight);
    for (const GridViewport::Strip& strip : view.columns)
        look::DrawRightEdge(surface, {strip.left, view.cells.top, strip.width, height}, scheme::GridLine);
}

void Grid::DrawCurrentCell(Surface& surface, const GridViewport& view) const {
    const Rect cell = view.CellArea(row_, column_);
    if (row_ > 0 && HasFocus() && !cell.IsEmpty())
        surface.DrawFrame(cell, scheme::Focus, look::PixelsOf(surface, look::FocusWidth / 2));
}

bool Grid::IsSelected(int row, int column) const {
    const auto [firstRow, lastRow] = std::minmax(row_, rowSel_);
    const auto [firstColumn, lastColumn] = std::minmax(column_, columnSel_);
    return row_ > 0 && row >= firstRow && row <= lastRow && column >= firstColumn && column <= lastColumn;
}

}  // namespace tavrin::forms
