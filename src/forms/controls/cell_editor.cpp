#include "forms/controls/cell_editor.h"

#include <utility>

namespace tavrin::forms {

CellEditor::CellEditor(Grid& grid, TextBox& field) : grid_(grid), field_(field) {
    grid_.onContent = [this] { Close(); };
    grid_.onLayout = [this] { PlaceField(); };
    // A user who could leave the cell has ended its edit before another one becomes the current one.
    grid_.onChange = [this] { ReturnToCell(); };
    field_.onWheel = [this](int notches) { grid_.HandleWheel(notches); };
}

bool CellEditor::IsEdited() const {
    return IsOpen() && field_.Text() != grid_.TextMatrix(row_, column_);
}

void CellEditor::Open(int row, int column) {
    grid_.SetRow(row);
    grid_.SetCol(column);
    row_ = grid_.Row();
    column_ = grid_.Col();
    if (!IsOpen()) return;
    PlaceField();
    field_.SetAccessibleName(grid_.CellName(row_, column_));
    field_.SetText(grid_.TextMatrix(row_, column_));
    field_.SetVisible(true);
    field_.SetFocus();
    field_.SelectAll();
}

void CellEditor::ReturnToCell() {
    if (!IsOpen()) return;
    grid_.SetRow(row_);
    grid_.SetCol(column_);
}

void CellEditor::Commit(std::string text) {
    grid_.SetTextMatrix(row_, column_, std::move(text));
    Close();
}

void CellEditor::Close() {
    row_ = 0;
    field_.SetVisible(false);
}

void CellEditor::PlaceField() {
    if (!IsOpen()) return;
    // A cell out of sight has no extent, nor has its field then: it keeps the keyboard and covers nothing.
    const Rect cell = grid_.CellBounds(row_, column_);
    const Rect& grid = grid_.Bounds();
    field_.SetBounds({grid.left + cell.left, grid.top + cell.top, cell.width, cell.height});
}

}  // namespace tavrin::forms
