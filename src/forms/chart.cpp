#include "forms/chart.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

#include "data/rounding.h"
#include "data/value.h"
#include "forms/chart_layout.h"

namespace tavrin::forms {

namespace {

constexpr int Gap = 60;
constexpr int TickLength = 60;
constexpr int MostTicks = 8;
constexpr int TickDecimals = 4;
constexpr double LineWidth = 24;
constexpr double PointRadius = 36;
constexpr int PointCorners = 12;
constexpr double PointsNeedColumn =
    4 * PointRadius;  // where columns are narrower, the points would hide the line
constexpr Color AxisColor = 0x808080;
constexpr Color TickLineColor = 0x2C2C2C;
constexpr Color LineColor = Green;

std::string TickText(double value) {
    return data::ShortestDecimal(data::RoundHalfEven(value, TickDecimals));
}

/// Draws one chart; lives for one call of Draw.
class ChartPainter {
  public:
    ChartPainter(Surface& surface, const Chart& chart) : surface_(surface), chart_(chart) {
        text_.font = chart.TextFont();
        text_.color = chart.ForeColor();
        ticks_ = AxisTicks(chart.Minimum(), chart.Maximum(), MostTicks);
        scale_ = {PlotArea(), chart.Minimum(), chart.Maximum(), chart.RowCount()};
    }

    void Paint() {
        surface_.FillRectangle({0, 0, chart_.Bounds().width, chart_.Bounds().height}, chart_.BackColor());
        PaintValueAxis();
        PaintRowAxis();
        PaintLine();
    }

  private:
    Rect PlotArea() {
        const int lineHeight = surface_.MeasureText("0", text_.font).height;
        int widest = 0;
        for (const double tick : ticks_)
            widest = std::max(widest, surface_.MeasureText(TickText(tick), text_.font).width);
        const int left = widest + TickLength + 2 * Gap;
        const int top = lineHeight / 2 + Gap;
        const Rect& area = chart_.Bounds();
        return {left, top, std::max(0, area.width - left - 2 * Gap),
                std::max(0, area.height - top - lineHeight - TickLength - 2 * Gap)};
    }

    void PaintValueAxis() {
        const int hairline = std::max(1, static_cast<int>(std::lround(surface_.PixelSize())));
        const int height = surface_.MeasureText("0", text_.font).height;
        TextStyle style = text_;
        style.align = Align::Right;
        for (const double tick : ticks_) {
            const int y = static_cast<int>(std::lround(scale_.ValueY(tick)));
            surface_.FillRectangle(
                {scale_.plot.left - TickLength, y, TickLength + scale_.plot.width, hairline}, TickLineColor);
            surface_.DrawText(TickText(tick),
                              {0, y - height / 2, scale_.plot.left - TickLength - Gap, height}, style);
        }
        surface_.FillRectangle({scale_.plot.left, scale_.plot.top, hairline, scale_.plot.height}, AxisColor);
        surface_.FillRectangle({scale_.plot.left, scale_.plot.Bottom(), scale_.plot.width, hairline},
                               AxisColor);
    }

    void PaintRowAxis() {
        const Size two = surface_.MeasureText("00", text_.font);
        const int width = two.width + Gap;
        const int step = LabelStep(scale_, width);
        TextStyle style = text_;
        style.align = Align::Center;
        for (int row = 1; row <= chart_.RowCount(); row += step) {
            const int middle = static_cast<int>(std::lround(scale_.RowX(row)));
            surface_.DrawText(chart_.Row(row).label,
                              {middle - width / 2, scale_.plot.Bottom() + TickLength, width, two.height},
                              style);
        }
    }

    /// One stroke for every run of rows that have values; a row without one ends the run.
    void PaintLine() {
        std::vector<PointF> run;
        for (int row = 1; row <= chart_.RowCount(); ++row) {
            if (const auto& value = chart_.Row(row).value) {
                run.push_back({scale_.RowX(row), scale_.ValueY(*value)});
            } else {
                PaintRun(run);
            }
        }
        PaintRun(run);
    }

    void PaintRun(std::vector<PointF>& run) {
        if (run.size() > 1) surface_.DrawPolyline(run, LineWidth, LineColor);
        const bool roomForPoints = scale_.plot.width >= PointsNeedColumn * chart_.RowCount();
        if (roomForPoints || run.size() == 1) {
            for (const PointF& point : run)
                PaintPoint(point);
        }
        run.clear();
    }

    void PaintPoint(const PointF& at) {
        std::array<PointF, PointCorners> outline;
        for (std::size_t i = 0; i < outline.size(); ++i) {
            const double angle = 2 * std::numbers::pi * static_cast<double>(i) / PointCorners;
            outline[i] = {at.x + PointRadius * std::cos(angle), at.y + PointRadius * std::sin(angle)};
        }
        surface_.FillPolygon(outline, LineColor);
    }

    Surface& surface_;
    const Chart& chart_;
    TextStyle text_;
    std::vector<double> ticks_;
    ChartScale scale_;
};

}  // namespace

Chart::Chart(Container& parent, std::string_view name, Rect bounds) : Control(parent, name, bounds) {
    SetBackColor(scheme::Field);
}

void Chart::SetRowCount(int count) {
    rows_.resize(static_cast<std::size_t>(std::max(0, count)));
    Repaint();
}

void Chart::SetRowLabel(int row, std::string label) {
    if (row < 1 || row > RowCount()) return;
    rows_[static_cast<std::size_t>(row - 1)].label = std::move(label);
    Repaint();
}

void Chart::SetData(int row, double value) {
    if (row < 1 || row > RowCount()) return;
    rows_[static_cast<std::size_t>(row - 1)].value = value;
    Repaint();
}

void Chart::SetValueScale(double minimum, double maximum) {
    minimum_ = minimum;
    maximum_ = maximum;
    Repaint();
}

void Chart::Draw(Surface& surface) const {
    ChartPainter(surface, *this).Paint();
}

std::vector<int> Chart::RowsWithValue() const {
    std::vector<int> rows;
    for (int row = 1; row <= RowCount(); ++row) {
        if (Row(row).value) rows.push_back(row);
    }
    return rows;
}

AccessibleNode Chart::Accessible() const {
    AccessibleNode node = Control::Accessible();
    node.role = Role::Chart;
    node.readOnly = true;
    for (const int row : RowsWithValue()) {
        if (!node.value.empty()) node.value += "; ";
        node.value += Row(row).label + ": " + data::ShortestDecimal(*Row(row).value);
    }
    return node;
}

int Chart::AccessibleChildCount() const {
    return static_cast<int>(RowsWithValue().size());
}

AccessibleNode Chart::AccessibleChild(int child) const {
    const std::vector<int> rows = RowsWithValue();
    if (child < 0 || child >= static_cast<int>(rows.size())) return {};
    const int row = rows[static_cast<std::size_t>(child)];
    AccessibleNode node;
    node.role = Role::Graphic;
    node.name = Row(row).label;
    node.value = data::ShortestDecimal(*Row(row).value);
    node.readOnly = true;
    node.bounds = {(row - 1) * ColumnWidth(), 0, ColumnWidth(), Bounds().height};
    return node;
}

int Chart::AccessibleChildAt(Point place) const {
    const std::vector<int> rows = RowsWithValue();
    const auto found = std::ranges::find(rows, place.x / std::max(1, ColumnWidth()) + 1);
    return found != rows.end() ? static_cast<int>(found - rows.begin()) : -1;
}

}  // namespace tavrin::forms
