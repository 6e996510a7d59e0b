#pragma once

#include <string>

#include "forms/controls/grid.h"
#include "forms/controls/text_box.h"

namespace tavrin::forms {

/// The edit of one cell of a grid, in a text field that lies over it. Field and cell are one thing: the field
/// goes where the cell goes when the grid is scrolled or sized, is out of sight with it, and is gone when the
/// cells are replaced. The text goes to the cell that was opened, whichever may be the current one by then.
///
/// The grid's onContent, onLayout and onChange and the field's onWheel are taken.
class CellEditor {
  public:
    /// \pre both stand in the same container
    CellEditor(Grid& grid, TextBox& field);
    CellEditor(const CellEditor&) = delete;
    CellEditor& operator=(const CellEditor&) = delete;

    bool IsOpen() const { return row_ > 0; }
    int Row() const { return row_; }  ///< 0 while nothing is edited
    /// Whether the field has another text than the cell.
    bool IsEdited() const;

    /// Makes a cell the current one and gives its field the keyboard, the whole text selected. Nothing
    /// happens in a grid without rows.
    void Open(int row, int column);
    /// Makes the cell the current one again, in sight.
    void ReturnToCell();
    /// Ends the edit with that text in the cell.
    void Commit(std::string text);
    /// Ends the edit and leaves the cell as it is.
    void Close();

  private:
    void PlaceField();

    Grid& grid_;
    TextBox& field_;
    int row_ = 0;
    int column_ = 0;
};

}  // namespace tavrin::forms
