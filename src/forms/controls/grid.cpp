#include "forms/controls/grid.h"

#include <algorithm>
#include <string>
#include <utility>

#include "forms/model/form.h"

namespace tavrin::forms {

namespace {

void Append(std::string& text, const char* separator, const std::string& more) {
    text += separator;
    text += more;
}

}  // namespace

Grid::Grid(Container& parent, std::string_view name, Rect bounds)
    : Control(parent, name, bounds), placedSize_{bounds.width, bounds.height} {
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
    Raise(event::Content, onContent);
    table_ = std::move(table);
    cells_.clear();
    if (table_) {
        columns_.resize(table_->FieldCount());
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            if (!columns_[i].isTitled) columns_[i].header = table_->FieldName(i);
        }
    }
    Restart();
}

void Grid::Clear() {
    Raise(event::Content, onContent);
    table_ = nullptr;
    for (Column& column : columns_) {
        column.header.clear();
        column.isTitled = false;
    }
    for (auto& row : cells_)
        std::ranges::fill(row, std::string());
    if (cells_.empty()) Restart();
    Repaint();
}

void Grid::Restart() {
    row_ = DataRowCount() > 0 ? 1 : 0;
    column_ = 0;
    rowSel_ = row_;
    columnSel_ = 0;
    topRow_ = 1;
    columnsPassed_ = 0;
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
        SetTitle(static_cast<int>(i), std::move(title));
        start = end + 1;
    }
    Repaint();
}

void Grid::SetTitle(int column, std::string title) {
    Column& titled = columns_[static_cast<std::size_t>(column)];
    titled.header = std::move(title);
    titled.isTitled = true;
}

void Grid::SetSize(int rows, int columns) {
    Raise(event::Content, onContent);
    table_ = nullptr;
    columns_.resize(static_cast<std::size_t>(std::max(0, columns)));
    cells_.resize(static_cast<std::size_t>(std::max(0, rows - 1)));
    for (auto& row : cells_)
        row.resize(columns_.size());
    MoveTo(row_, column_);
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
        SetTitle(column, std::move(text));
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

void Grid::SetZerosApart(int column) {
    if (column < 0 || column >= Columns()) return;
    columns_[static_cast<std::size_t>(column)].setsZerosApart = true;
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
    const bool wholeRow = IsWholeRowMarked();
    MoveTo(row, column);
    // A list whose rows are marked as a whole keeps them so while the user walks up and down.
    if (wholeRow && column_ == oldColumn) columnSel_ = Columns() - 1;
    if (row_ != oldRow || column_ != oldColumn) Raise(event::Change, onChange);
}

bool Grid::IsWholeRowMarked() const {
    return columnSel_ > column_ && column_ == 0 && columnSel_ == Columns() - 1;
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
    const int page = Viewport().wholeRows;
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

bool Grid::IsCellAt(Point place) const {
    const GridViewport view = Viewport();
    const int row = view.RowAt(place.y);
    return row > 0 && row < Rows() && view.ColumnAt(place.x) >= 0;
}

void Grid::DefaultMouseDown(const MouseInput& input) {
    if (input.button != MouseButton::Left) return;
    dragged_.reset();
    pressedCell_ = !PressScrollBar(input.at) && IsCellAt(input.at);
    if (!pressedCell_) return;
    const GridViewport view = Viewport();
    MoveByUser(view.RowAt(input.at.y), view.ColumnAt(input.at.x));
}

void Grid::DefaultMouseMove(const MouseInput& input) {
    if (!IsPressed()) dragged_.reset();
    if (dragged_) DragThumb(input.at);
}

void Grid::DefaultMouseUp(const MouseInput& input) {
    dragged_.reset();
    Control::DefaultMouseUp(input);
}

void Grid::HandleDblClick(const MouseInput& input) {
    if (Viewport().BarAt(input.at) != nullptr) {
        HandleMouseDown(input);
    } else {
        Control::HandleDblClick(input);
    }
}

void Grid::Notify(Aspect aspect) {
    Control::Notify(aspect);
    if (aspect == Aspect::Bounds) KeepInSight();
    Raise(event::Layout, onLayout);
}

// Assistive tools.

AccessibleNode Grid::Accessible() const {
    AccessibleNode node = Control::Accessible();
    node.role = Role::Table;
    node.readOnly = true;
    if (row_ > 0) node.value = TextMatrix(row_, column_);
    return node;
}

std::vector<int> Grid::ShownColumns() const {
    std::vector<int> shown;
    for (int i = 0; i < Columns(); ++i) {
        if (ColumnWidth(i) > 0) shown.push_back(i);
    }
    return shown;
}

namespace {

/// A cell's text in a table of texts: what would begin another cell or row is a blank.
std::string InOneCell(std::string text) {
    std::ranges::replace_if(
        text, [](char each) { return each == '\t' || each == '\r' || each == '\n'; }, ' ');
    return text;
}

}  // namespace

std::string Grid::TextOfRows(int first, int last) const {
    const std::vector<int> columns = ShownColumns();
    std::string text;
    const auto add = [&](int row) {
        const char* before = "";
        for (const int column : columns) {
            text += before + InOneCell(TextMatrix(row, column));
            before = "\t";
        }
        text += "\r\n";
    };
    add(0);
    for (int row = std::max(first, 1); row <= std::min(last, Rows() - 1); ++row)
        add(row);
    return text;
}

std::optional<Copied> Grid::Copy() const {
    if (Rows() < 2) return std::nullopt;
    return Copied{TextOfRows(std::min(row_, rowSel_), std::max(row_, rowSel_))};
}

int Grid::AccessibleChildCount() const {
    return Rows() * static_cast<int>(ShownColumns().size());
}

AccessibleNode Grid::AccessibleChild(int child) const {
    const std::vector<int> shown = ShownColumns();
    const int count = static_cast<int>(shown.size());
    if (count == 0 || child < 0 || child >= Rows() * count) return {};
    const int row = child / count;
    const int column = shown[static_cast<std::size_t>(child % count)];
    AccessibleNode node;
    node.bounds = CellBounds(row, column);
    node.readOnly = true;
    node.invisible = node.bounds.IsEmpty();
    node.name = CellName(row, column);
    if (row == 0) {
        node.role = Role::ColumnHeader;
        return node;
    }
    node.role = Role::Cell;
    node.value = TextMatrix(row, column);
    node.focused = row == row_ && column == column_ && HasFocus();
    node.description = Describe(row, column);
    node.selectable = true;
    node.selected = IsSelected(row, column);
    return node;
}

std::string Grid::CellName(int row, int column) const {
    std::string name = TextMatrix(0, column);
    const int first = NeighbourColumn(-1, 1);
    if (row > 0 && column != first) Append(name, ", ", TextMatrix(row, first));
    return name;
}

std::string Grid::Describe(int row, int column) const {
    std::string text;
    const bool isCurrent = row == row_ && column == column_;
    for (int other = 0; isCurrent && other < Columns(); ++other) {
        if (other == column || ColumnWidth(other) == 0 || !IsSelected(row, other)) continue;
        Append(text, "", TextMatrix(0, other));
        Append(text, " ", TextMatrix(row, other));
        text += ", ";
    }
    const char* before = "rândul ";
    for (const int number : {row, DataRowCount()})
        Append(text, std::exchange(before, " din "), std::to_string(number));
    return text;
}

int Grid::PartOf(int row, int column) const {
    const std::vector<int> shown = ShownColumns();
    const auto place = std::ranges::find(shown, column);
    if (place == shown.end()) return -1;
    return row * static_cast<int>(shown.size()) + static_cast<int>(place - shown.begin());
}

int Grid::AccessibleSelectedChild() const {
    return row_ > 0 ? PartOf(row_, column_) : -1;
}

int Grid::AccessibleChildAt(Point place) const {
    const GridViewport view = Viewport();
    const int row = view.header.Contains(place) ? 0 : view.RowAt(place.y);
    return row >= 0 && row < Rows() ? PartOf(row, view.ColumnAt(place.x)) : -1;
}

}  // namespace tavrin::forms
