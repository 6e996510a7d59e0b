// How a grid looks.

#include <algorithm>

#include "forms/controls/grid.h"
#include "forms/controls/look.h"
#include "forms/model/form.h"

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
    surface.FillRectangle(view.headerBand, scheme::Face);
    {
        const ClipScope clip(surface, view.header);
        DrawHeader(surface, view);
    }
    look::DrawBottomEdge(surface, view.headerBand, scheme::Border);
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
}

void Grid::DrawRow(Surface& surface, const GridViewport& view, int row) const {
    const Rect line = view.RowArea(row);
    if (row == row_) {
        surface.FillRectangle(line, IsEffectivelyEnabled() ? scheme::CurrentRow : scheme::CurrentRowDisabled);
    }
    for (const GridViewport::Strip& strip : view.columns) {
        const std::string text = TextMatrix(row, strip.column);
        surface.DrawText(text, CellOf(line, strip).Inset(look::Padding, 0), StyleOfCell(row, strip, text));
    }
    look::DrawBottomEdge(surface, line, scheme::GridLine);
}

TextStyle Grid::StyleOfCell(int row, const GridViewport::Strip& strip, std::string_view text) const {
    TextStyle style = look::TextStyleOf(*this);
    style.align = ColumnAlignment(strip.column);
    const bool isCurrent = row == row_;
    const bool isEnabled = IsEffectivelyEnabled();
    if (isCurrent && !isEnabled) style.color = scheme::TextOfCurrentRowDisabled;
    if (text == "0" && columns_[static_cast<std::size_t>(strip.column)].setsZerosApart) {
        style.font.italic = true;
        if (isEnabled && !isCurrent) style.color = scheme::Zero;
    }
    return style;
}

void Grid::DrawColumnLines(Surface& surface, const GridViewport& view, int bottomRow) const {
    const int height = std::min(view.cells.height, (bottomRow - view.topRow + 1) * view.rowHeight);
    for (const GridViewport::Strip& strip : view.columns)
        look::DrawRightEdge(surface, {strip.left, view.cells.top, strip.width, height}, scheme::GridLine);
}

/// A line beneath the cell that the arrows move. The frame of the focus is the grid's alone.
void Grid::DrawCurrentCell(Surface& surface, const GridViewport& view) const {
    const Rect cell = view.CellArea(row_, column_);
    if (row_ == 0 || !HasFocus() || IsWholeRowMarked() || cell.IsEmpty()) return;
    surface.FillRectangle({cell.left, cell.Bottom() - look::FocusWidth, cell.width, look::FocusWidth},
                          scheme::Focus);
}

bool Grid::IsSelected(int row, int column) const {
    const auto [firstRow, lastRow] = std::minmax(row_, rowSel_);
    const auto [firstColumn, lastColumn] = std::minmax(column_, columnSel_);
    return row_ > 0 && row >= firstRow && row <= lastRow && column >= firstColumn && column <= lastColumn;
}

}  // namespace tavrin::forms
