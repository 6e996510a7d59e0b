#pragma once

#include <vector>

#include "forms/drawing/geometry.h"

namespace tavrin::forms {

/// A slim scroll bar: `first` of `total` steps is the first in sight, `shown` steps are in sight at once.
/// Lengths are twips.
struct ScrollBar {
    enum class Direction { Vertical, Horizontal };

    static constexpr int Thickness = 180;

    Direction direction = Direction::Vertical;
    Rect track;
    int total = 0;
    int shown = 0;
    int first = 0;

    bool IsNeeded() const { return total > shown; }
    /// The largest value of `first`.
    int Last() const { return IsNeeded() ? total - shown : 0; }
    /// The part that the user drags.
    Rect Thumb() const;
    /// The distance of a place from the start of the track, in twips.
    int Along(Point place) const;
    /// The first step in sight when the thumb starts that far along the track.
    int FirstAt(int along) const;
};

/// All that decides what of a grid is in sight. Lengths are twips.
struct GridExtent {
    Size size;
    int rowHeight = 0;
    int rows = 0;             ///< without the header
    int topRow = 1;           ///< counted from 1
    std::vector<int> widths;  ///< of all columns; 0 is hidden
    int columnsPassed = 0;    ///< how many columns that are not hidden lie to the left of what is in sight
};

/// How a grid divides its area: a header line, the cells, and the scroll bars that are needed. Rows are shown
/// whole or not at all, as long as there is room for one. Places are twips from the grid's top left corner.
/// Scroll positions beyond the end are drawn back to it.
struct GridViewport {
    /// A column in sight; the last one may reach out of the cells' area.
    struct Strip {
        int column = 0;
        int left = 0;
        int width = 0;
        int Right() const { return left + width; }
    };

    static constexpr int Frame = 30;  ///< around everything

    /// Of a grid that shows columns of that total width and so many whole rows under its header.
    static constexpr Size SizeFor(int columnsWidth, int rows, int rowHeight) {
        return {columnsWidth + 2 * Frame, (rows + 1) * rowHeight + 2 * Frame};
    }

    explicit GridViewport(const GridExtent& extent);

    /// Empty for a row out of sight; row 0 is the header.
    Rect RowArea(int row) const;
    /// What of a cell is in sight.
    Rect CellArea(int row, int column) const;
    /// The row at that height, -1 outside the cells. It may be beyond the last.
    int RowAt(int y) const;
    /// The column at that place, -1 where there is none.
    int ColumnAt(int x) const;
    /// The scroll bar at that place, null where there is none.
    const ScrollBar* BarAt(Point place) const;
    /// The last row in sight; it may be beyond the last of the grid.
    int BottomRow() const;

    Rect header;      ///< above the cells
    Rect headerBand;  ///< the header's background, which runs on above the scroll bar
    Rect cells;
    int rowHeight = 0;
    int topRow = 1;
    int wholeRows = 0;  ///< at least 1, so that paging always moves
    std::vector<Strip> columns;
    ScrollBar rowBar;
    ScrollBar columnBar;

  private:
    void PlaceBars(const GridExtent& extent);
    void PlaceColumns(const GridExtent& extent);
};

}  // namespace tavrin::forms
