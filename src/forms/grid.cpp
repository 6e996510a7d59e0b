#include "forms/grid.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"

namespace tavrin::forms {

Grid::Grid(Container& parent, std::string name, Rect bounds) : Control(parent, std::move(name), bounds) {
    SetBackColor(scheme::Field);
    SetForeColor(scheme::Value);
}

// Content.

int Grid::DataRowCount() const {
    return static_cast<int>(table_ ? table_->RowCount() : cells_.size());
}

int Grid::Rows() const {
    return DataRowCount() + 1;
}

int Grid::Columns() const {
    return static_cast<int>(columns_.size());
}

void Grid::SetDataSource(data::TablePtr table) {
    table_ = std::move(table);
    cells_.clear();
    if (table_) {
        columns_.resize(table_->FieldCount());
        for (std::size_t i = 0; i < columns_.size(); ++i)
            columns_[i].header = table_->FieldName(i);
    }
    topRow_ = 1;
    leftColumn_ = 0;
    row_ = DataRowCount() > 0 ? 1 : 0;
    column_ = 0;
    rowSel_ = row_;
    columnSel_ = 0;
    Repaint();
}

void Grid::Clear() {
    table_ = nullptr;
    for (Column& column : columns_)
        column.header.clear();
    for (auto& row : cells_)
        std::ranges::fill(row, std::string());
    Normalize();
    Repaint();
}

void Grid::SetFormatString(const std::string& format) {
    std::size_t start = 0;
    for (std::size_t i = 0; start <= format.size(); ++i) {
        const std::size_t end = std::min(format.find('|', start), format.size());
        std::string title = format.substr(start, end - start);
        if (i >= columns_.size()) columns_.emplace_back();
        if (!title.empty() && std::string_view("<^>").find(title.front()) != std::string_view::npos) {
            columns_[i].align = title.front() == '^'   ? Align::Center
                                : title.front() == '>' ? Align::Right
                                                       : Align::Left;
            title.erase(0, 1);
        }
        columns_[i].header = std::move(title);
        start = end + 1;
    }
    Repaint();
}

void Grid::SetSize(int rows, int columns) {
    table_ = nullptr;
    columns_.resize(static_cast<std::size_t>(std::max(0, columns)));
    cells_.resize(static_cast<std::size_t>(std::max(0, rows - 1)));
    for (auto& row : cells_)
        row.resize(columns_.size());
    Normalize();
    Repaint();
}

std::string Grid::TextMatrix(int row, int column) const {
    if (row < 0 || row >= Rows() || column < 0 || column >= Columns()) return {};
    const auto field = static_cast<std::size_t>(column);
    if (row == 0) return columns_[field].header;
    const auto line = static_cast<std::size_t>(row - 1);
    if (!table_) return cells_[line][field];
    return field < table_->FieldCount() ? table_->At(line, field).ToText() : std::string();
}

void Grid::SetTextMatrix(int row, int column, std::string text) {
    if (row < 0 || row >= Rows() || column < 0 || column >= Columns()) return;
    if (row == 0) {
        columns_[static_cast<std::size_t>(column)].header = std::move(text);
    } else if (!table_) {
        cells_[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column)] = std::move(text);
    }
    Repaint();
}

// Columns.

int Grid::ColumnWidth(int column) const {
    return column >= 0 && column < Columns() ? columns_[static_cast<std::size_t>(column)].width : 0;
}

void Grid::SetColumnWidth(int column, int width) {
    if (column < 0 || column >= Columns()) return;
    columns_[static_cast<std::size_t>(column)].width = std::max(0, width);
    Repaint();
}

Align Grid::ColumnAlignment(int column) const {
    return column >= 0 && column < Columns() ? columns_[static_cast<std::size_t>(column)].align : Align::Left;
}

void Grid::SetColumnAlignment(int column, Align align) {
    if (column < 0 || column >= Columns()) return;
    columns_[static_cast<std::size_t>(column)].align = align;
    Repaint();
}

// The current cell.

void Grid::SetRow(int row) {
    MoveTo(row, column_);
}

void Grid::SetCol(int column) {
    MoveTo(row_, column);
}

void Grid::SetColSel(int column) {
    columnSel_ = std::clamp(column, 0, std::max(0, Columns() - 1));
    Repaint();
}

void Grid::MoveTo(int row, int column) {
    row_ = DataRowCount() == 0 ? 0 : std::clamp(row, 1, Rows() - 1);
    column_ = std::clamp(column, 0, std::max(0, Columns() - 1));
    rowSel_ = row_;
    columnSel_ = column_;
    BringIntoSight();
    Repaint();
}

void Grid::MoveByUser(int row, int column) {
    const int oldRow = row_;
    const int oldColumn = column_;
    const bool wholeRow = columnSel_ > column_ && column_ == 0 && columnSel_ == Columns() - 1;
    MoveTo(row, column);
    // A list whose rows are marked as a whole keeps them so while the user walks up and down.
    if (wholeRow && column_ == oldColumn) columnSel_ = Columns() - 1;
    if (row_ != oldRow || column_ != oldColumn) Raise(onChange);
}

void Grid::Normalize() {
    row_ = DataRowCount() == 0 ? 0 : std::clamp(row_, 1, Rows() - 1);
    column_ = std::clamp(column_, 0, std::max(0, Columns() - 1));
    rowSel_ = row_;
    columnSel_ = column_;
    topRow_ = 1;
    leftColumn_ = 0;
}

int Grid::NeighbourColumn(int column, int step) const {
    for (int next = column + step; next >= 0 && next < Columns(); next += step) {
        if (ColumnWidth(next) > 0) return next;
    }
    return column;
}

// Input.

KeyOutcome Grid::DefaultKeyDown(int keyCode, Modifiers modifiers) {
    if (modifiers.alt) return KeyOutcome::Default;
    const int page = std::max(1, Viewport().rowsInSight);
    int row = row_;
    int column = column_;
    switch (keyCode) {
        case key::Up:
            --row;
            break;
        case key::Down:
            ++row;
            break;
        case key::PageUp:
            row -= page;
            break;
        case key::PageDown:
            row += page;
            break;
        case key::Left:
            column = NeighbourColumn(column_, -1);
            break;
        case key::Right:
            column = NeighbourColumn(column_, 1);
            break;
        case key::Home:
            (modifiers.control ? row : column) = modifiers.control ? 1 : NeighbourColumn(-1, 1);
            break;
        case key::End:
            (modifiers.control ? row : column) =
                modifiers.control ? Rows() - 1 : NeighbourColumn(Columns(), -1);
            break;
        default:
            return KeyOutcome::Default;
    }
    MoveByUser(row, column);
    return KeyOutcome::Done;
}

void Grid::DefaultMouseDown(const MouseInput& input) {
    if (input.button != MouseButton::Left || PressScrollBar(input.at)) return;
    const GridViewport view = Viewport();
    if (!view.cells.Contains(input.at)) return;
    const int row = topRow_ + (input.at.y - view.cells.top) / rowHeight_;
    const int column = ColumnAt(input.at.x);
    if (row < Rows() && column >= 0) MoveByUser(row, column);
}

void Grid::DefaultMouseMove(const MouseInput& input) {
    if (drag_ != Drag::None) DragThumb(input.at);
}

void Grid::DefaultMouseUp(const MouseInput& input) {
    const bool dragged = std::exchange(drag_, Drag::None) != Drag::None;
    const bool onCells = Viewport().cells.Contains(input.at);
    if (dragged || !onCells) {
        HandleCaptureLost();
    } else {
        Control::DefaultMouseUp(input);
    }
}

void Grid::HandleWheel(int notches) {
    constexpr int RowsPerNotch = 3;
    ScrollTo(topRow_ - notches * RowsPerNotch);
}

// Assistive tools.

AccessibleNode Grid::Accessible() const {
    AccessibleNode node = Control::Accessible();
    node.role = Role::Table;
    node.readOnly = true;
    if (row_ > 0) node.value = TextMatrix(row_, column_);
    return node;
}

int Grid::AccessibleChildCount() const {
    const auto shown = std::ranges::count_if(columns_, [](const Column& column) { return column.width > 0; });
    return Rows() * static_cast<int>(shown);
}

AccessibleNode Grid::AccessibleChild(int child) const {
    std::vector<int> shown;
    for (int i = 0; i < Columns(); ++i) {
        if (ColumnWidth(i) > 0) shown.push_back(i);
    }
    if (shown.empty() || child < 0 || child >= AccessibleChildCount()) return {};
    const int row = child / static_cast<int>(shown.size());
    const int column = shown[static_cast<std::size_t>(child) % shown.size()];
    AccessibleNode node;
    node.role = Role::Cell;
    node.name = TextMatrix(0, column);
    node.value = TextMatrix(row, column);
    node.bounds = CellBounds(row, column);
    node.selectable = row > 0;
    node.selected = row > 0 && IsSelected(row, column);
    node.focused = HasFocus() && row == row_ && column == column_;
    node.readOnly = true;
    node.invisible = node.bounds.IsEmpty();
    return node;
}

int Grid::AccessibleSelectedChild() const {
    if (row_ < 1 || ColumnWidth(column_) == 0) return -1;
    int shown = 0;
    int place = 0;
    for (int i = 0; i < Columns(); ++i) {
        if (ColumnWidth(i) == 0) continue;
        if (i < column_) ++place;
        ++shown;
    }
    return row_ * shown + place;
}

}  // namespace tavrin::forms
