#pragma once

#include "forms/geometry.h"

namespace tavrin::forms {

/// A slim scroll bar: `first` of `total` lines is the first in sight, `shown` lines are in sight at once.
struct ScrollBar {
    Rect track;
    int total = 0;
    int shown = 0;
    int first = 0;

    bool IsNeeded() const { return total > shown; }
    int Last() const { return total > shown ? total - shown : 0; }
    /// The part that the user drags; `vertical` says along which side of the track.
    Rect Thumb(bool vertical) const;
    /// The first line in sight when the thumb's start lies at a place along the track.
    int FirstAt(int place, bool vertical) const;
};

/// How a grid divides its area: a header line, the cells, and the scroll bars that are needed.
struct GridViewport {
    Rect header;
    Rect cells;
    int rowsInSight = 0;  ///< whole rows
    ScrollBar rows;       ///< lines are data rows
    ScrollBar columns;    ///< lines are twips of column width

    static constexpr int BarThickness = 180;
};

}  // namespace tavrin::forms
