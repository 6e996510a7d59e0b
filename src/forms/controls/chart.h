#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/model/control.h"

namespace tavrin::forms {

/// A line of values over labelled rows, drawn between a minimum and a maximum that touch the edges of the
/// plot. A row without a value leaves the line open there. Rows are counted from 1.
class Chart : public Control {
  public:
    struct ChartRow {
        std::string label;
        std::optional<double> value;
        bool operator==(const ChartRow&) const = default;
    };

    Chart(Container& parent, std::string_view name, Rect bounds = {});

    /// Rows that are added have neither label nor value; rows that are cut off are gone.
    void SetRowCount(int count);
    int RowCount() const { return static_cast<int>(rows_.size()); }
    /// A row outside 1 to RowCount() is left alone.
    void SetRowLabel(int row, std::string label);
    void SetData(int row, double value);
    const ChartRow& Row(int row) const { return rows_[static_cast<std::size_t>(row - 1)]; }

    /// The values at the lower and upper edge of the plot.
    void SetValueScale(double minimum, double maximum);
    double Minimum() const { return minimum_; }
    double Maximum() const { return maximum_; }

    /// What is drawn, in words, above the plot; empty for none.
    void SetTitle(std::string title);
    const std::string& Title() const { return title_; }
    /// Whether the numbers of the value axis have commas between thousands.
    void SetGrouped(bool grouped);
    bool IsGrouped() const { return grouped_; }
    /// The row whose value stands out, 0 for none.
    void SetMarkedRow(int row);
    int MarkedRow() const { return markedRow_; }

    void Draw(Surface& surface) const override;
    AccessibleNode Accessible() const override;
    /// One child a row that has a value.
    int AccessibleChildCount() const override;
    AccessibleNode AccessibleChild(int child) const override;
    int AccessibleChildAt(Point place) const override;

  private:
    void NoteValueOf(int row);
    int ColumnWidth() const { return Bounds().width / std::max(1, RowCount()); }

    std::vector<ChartRow> rows_;
    std::vector<int> withValue_;  ///< the rows that have one, from above
    double minimum_ = 0;
    double maximum_ = 0;
    std::string title_;
    bool grouped_ = false;
    int markedRow_ = 0;
};

}  // namespace tavrin::forms
