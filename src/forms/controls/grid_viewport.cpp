// How a grid divides its area; pure arithmetic.
#include "forms/controls/grid_viewport.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

namespace tavrin::forms {

namespace {

constexpr int ShortestThumb = 360;

int Scaled(std::int64_t value, std::int64_t numerator, std::int64_t denominator) {
    return denominator > 0 ? static_cast<int>(value * numerator / denominator) : 0;
}

Rect Intersection(const Rect& a, const Rect& b) {
    const int left = std::max(a.left, b.left);
    const int top = std::max(a.top, b.top);
    const Rect common{left, top, std::min(a.Right(), b.Right()) - left,
                      std::min(a.Bottom(), b.Bottom()) - top};
    return common.IsEmpty() ? Rect{} : common;
}

}  // namespace

Rect ScrollBar::Thumb() const {
    const bool vertical = direction == Direction::Vertical;
    const int length = vertical ? track.height : track.width;
    const int thumb = std::min(length, std::max(ShortestThumb, Scaled(length, shown, total)));
    const int start = Scaled(length - thumb, std::clamp(first, 0, Last()), Last());
    return vertical ? Rect{track.left, track.top + start, track.width, thumb}
                    : Rect{track.left + start, track.top, thumb, track.height};
}

int ScrollBar::Along(Point place) const {
    return direction == Direction::Vertical ? place.y - track.top : place.x - track.left;
}

int ScrollBar::FirstAt(int along) const {
    const Rect thumb = Thumb();
    const int room =
        direction == Direction::Vertical ? track.height - thumb.height : track.width - thumb.width;
    return std::clamp(Scaled(2LL * along * Last() + room, 1, 2LL * room), 0, Last());
}

GridViewport::GridViewport(const GridExtent& extent) : rowHeight(std::max(1, extent.rowHeight)) {
    PlaceBars(extent);
    wholeRows = std::max(1, cells.height / rowHeight);
    cells.height = std::min(cells.height, wholeRows * rowHeight);
    const int lastTopRow = std::max(1, extent.rows - wholeRows + 1);
    topRow = std::clamp(extent.topRow, 1, lastTopRow);
    rowBar.total = extent.rows;
    rowBar.shown = wholeRows;
    rowBar.first = topRow - 1;
    PlaceColumns(extent);
}

void GridViewport::PlaceBars(const GridExtent& extent) {
    Rect area = Rect{0, 0, extent.size.width, extent.size.height}.Inset(Frame);
    const std::int64_t rowsHeight = static_cast<std::int64_t>(extent.rows + 1) * rowHeight;
    const std::int64_t columnsWidth =
        std::accumulate(extent.widths.begin(), extent.widths.end(), std::int64_t{0});
    const int barWidth = std::min(ScrollBar::Thickness, area.width);
    const int barHeight = std::min(ScrollBar::Thickness, area.height);
    bool hasRowBar = false;
    bool hasColumnBar = false;
    // Each bar takes room that may then be missing in the other direction.
    for (int pass = 0; pass < 2; ++pass) {
        if (!hasRowBar && rowsHeight > area.height) {
            hasRowBar = true;
            area.width -= barWidth;
        }
        if (!hasColumnBar && columnsWidth > area.width) {
            hasColumnBar = true;
            area.height -= barHeight;
        }
    }
    header = {area.left, area.top, area.width, std::min(rowHeight, area.height)};
    headerBand = header;
    if (hasRowBar) headerBand.width += barWidth;
    cells = {area.left, header.Bottom(), area.width, std::max(0, area.height - header.height)};
    rowBar.direction = ScrollBar::Direction::Vertical;
    if (hasRowBar) rowBar.track = {area.Right(), cells.top, barWidth, cells.height};
    columnBar.direction = ScrollBar::Direction::Horizontal;
    if (hasColumnBar) columnBar.track = {area.left, area.Bottom(), area.width, barHeight};
}

void GridViewport::PlaceColumns(const GridExtent& extent) {
    std::vector<Strip> shown;
    for (std::size_t i = 0; i < extent.widths.size(); ++i) {
        if (extent.widths[i] > 0) shown.push_back({static_cast<int>(i), 0, extent.widths[i]});
    }
    const int count = static_cast<int>(shown.size());
    // From this one on all columns fit; at the least the last one is shown, however wide it is.
    int lastFirst = std::max(0, count - 1);
    int room = cells.width - (shown.empty() ? 0 : shown.back().width);
    while (lastFirst > 0 && shown[static_cast<std::size_t>(lastFirst - 1)].width <= room)
        room -= shown[static_cast<std::size_t>(--lastFirst)].width;

    columnBar.total = count;
    columnBar.shown = count - lastFirst;
    columnBar.first = std::clamp(extent.columnsPassed, 0, lastFirst);
    int left = cells.left;
    for (int i = columnBar.first; i < count && left < cells.Right(); ++i) {
        Strip strip = shown[static_cast<std::size_t>(i)];
        strip.left = left;
        left += strip.width;
        columns.push_back(strip);
    }
}

Rect GridViewport::RowArea(int row) const {
    if (row == 0) return header;
    if (row < topRow || row > BottomRow()) return {};
    return {cells.left, cells.top + (row - topRow) * rowHeight, cells.width, rowHeight};
}

Rect GridViewport::CellArea(int row, int column) const {
    const auto strip = std::ranges::find(columns, column, &Strip::column);
    const Rect line = RowArea(row);
    if (strip == columns.end() || line.IsEmpty()) return {};
    return Intersection({strip->left, line.top, strip->width, line.height}, row == 0 ? header : cells);
}

int GridViewport::RowAt(int y) const {
    return y >= cells.top && y < cells.Bottom() ? topRow + (y - cells.top) / rowHeight : -1;
}

int GridViewport::ColumnAt(int x) const {
    if (x < cells.left || x >= cells.Right()) return -1;
    const auto strip =
        std::ranges::find_if(columns, [x](const Strip& each) { return x >= each.left && x < each.Right(); });
    return strip == columns.end() ? -1 : strip->column;
}

const ScrollBar* GridViewport::BarAt(Point place) const {
    if (rowBar.track.Contains(place)) return &rowBar;
    return columnBar.track.Contains(place) ? &columnBar : nullptr;
}

int GridViewport::BottomRow() const {
    return topRow + (cells.height + rowHeight - 1) / rowHeight - 1;
}

}  // namespace tavrin::forms
