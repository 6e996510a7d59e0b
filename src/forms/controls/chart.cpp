#include "forms/controls/chart.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

#include "data/text/number_format.h"
#include "data/text/number_text.h"
#include "data/text/rounding.h"
#include "data/value.h"
#include "forms/controls/chart_layout.h"

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
constexpr double MarkRadius = 90;
constexpr double MarkWidth = 30;

std::string TickText(double value, bool grouped) {
    std::string text = data::NumberText(data::RoundHalfEven(value, TickDecimals));
    if (!grouped) return text;
    const std::size_t point = text.find('.');
    const int decimals = point == std::string::npos ? 0 : static_cast<int>(text.size() - point - 1);
    return data::FormatNumber(text, {.decimals = decimals, .grouping = 3, .leadingZero = true});
}

std::array<PointF, PointCorners> CircleAround(const PointF& middle, double radius) {
    std::array<PointF, PointCorners> outline;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const double angle = 2 * std::numbers::pi * static_cast<double>(i) / PointCorners;
        outline[i] = {middle.x + radius * std::cos(angle), middle.y + radius * std::sin(angle)};
    }
    return outline;
}

/// Draws one chart; lives for one call of Draw.
class ChartPainter {
  public:
    ChartPainter(Surface& surface, const Chart& chart) : surface_(surface), chart_(chart) {
        text_.font = chart.TextFont();
        text_.color = chart.ForeColor();
        title_ = text_;
        title_.font.bold = true;
        if (!chart.Title().empty())
            titleHeight_ = surface.MeasureText(chart.Title(), title_.font).height + Gap;
        ticks_ = AxisTicks(chart.Minimum(), chart.Maximum(), MostTicks);
        scale_ = {PlotArea(), chart.Minimum(), chart.Maximum(), chart.RowCount()};
    }

    void Paint() {
        surface_.FillRectangle({0, 0, chart_.Bounds().width, chart_.Bounds().height}, chart_.BackColor());
        PaintTitle();
        PaintValueAxis();
        PaintRowAxis();
        PaintLine();
        PaintMark();
    }

  private:
    Rect PlotArea() {
        const int lineHeight = surface_.MeasureText("0", text_.font).height;
        int widest = 0;
        for (const double tick : ticks_)
            widest = std::max(widest, surface_.MeasureText(TextOf(tick), text_.font).width);
        const int left = widest + TickLength + 2 * Gap;
        const int top = titleHeight_ + lineHeight / 2 + Gap;
        const Rect& area = chart_.Bounds();
        return {left, top, std::max(0, area.width - left - 2 * Gap),
                std::max(0, area.height - top - lineHeight - TickLength - 2 * Gap)};
    }

    std::string TextOf(double tick) const { return TickText(tick, chart_.IsGrouped()); }

    void PaintTitle() {
        if (titleHeight_ == 0) return;
        const int left = scale_.plot.left;
        surface_.DrawText(chart_.Title(), {left, Gap, std::max(0, scale_.plot.width), titleHeight_ - Gap},
                          title_);
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
            surface_.DrawText(TextOf(tick), {0, y - height / 2, scale_.plot.left - TickLength - Gap, height},
                              style);
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

    void PaintPoint(const PointF& at) { surface_.FillPolygon(CircleAround(at, PointRadius), LineColor); }

    /// A ring around the point, and a line down to its label.
    void PaintMark() {
        const int row = chart_.MarkedRow();
        if (row < 1 || row > chart_.RowCount() || !chart_.Row(row).value) return;
        const PointF at{scale_.RowX(row), scale_.ValueY(*chart_.Row(row).value)};
        const std::array<PointF, 2> down{
            {{at.x, at.y + MarkRadius}, {at.x, static_cast<double>(scale_.plot.Bottom())}}};
        if (down[0].y < down[1].y) surface_.DrawPolyline(down, surface_.PixelSize(), AxisColor);
        const auto circle = CircleAround(at, MarkRadius);
        std::vector<PointF> ring(circle.begin(), circle.end());
        ring.push_back(ring.front());
        surface_.DrawPolyline(ring, MarkWidth, chart_.ForeColor());
    }

    Surface& surface_;
    const Chart& chart_;
    TextStyle text_;
    TextStyle title_;
    int titleHeight_ = 0;
    std::vector<double> ticks_;
    ChartScale scale_;
};

}  // namespace

Chart::Chart(Container& parent, std::string_view name, Rect bounds) : Control(parent, name, bounds) {
    SetBackColor(scheme::Field);
}

void Chart::SetRowCount(int count) {
    rows_.resize(static_cast<std::size_t>(std::max(0, count)));
    withValue_.erase(std::ranges::upper_bound(withValue_, RowCount()), withValue_.end());
    Repaint();
}

void Chart::SetRowLabel(int row, std::string label) {
    if (row < 1 || row > RowCount()) return;
    rows_[static_cast<std::size_t>(row - 1)].label = std::move(label);
    Repaint();
}

void Chart::SetData(int row, double value) {
    if (row < 1 || row > RowCount()) return;
    std::optional<double>& held = rows_[static_cast<std::size_t>(row - 1)].value;
    if (!held) NoteValueOf(row);
    held = value;
    Repaint();
}

void Chart::NoteValueOf(int row) {
    // Charts are filled from the left.
    const bool isLast = withValue_.empty() || withValue_.back() < row;
    withValue_.insert(isLast ? withValue_.end() : std::ranges::lower_bound(withValue_, row), row);
}

void Chart::SetValueScale(double minimum, double maximum) {
    minimum_ = minimum;
    maximum_ = maximum;
    Repaint();
}

void Chart::SetTitle(std::string title) {
    title_ = std::move(title);
    Repaint();
}

void Chart::SetGrouped(bool grouped) {
    grouped_ = grouped;
    Repaint();
}

void Chart::SetMarkedRow(int row) {
    if (markedRow_ == row) return;
    markedRow_ = row;
    Repaint();
}

void Chart::Draw(Surface& surface) const {
    ChartPainter(surface, *this).Paint();
}

AccessibleNode Chart::Accessible() const {
    AccessibleNode node = Control::Accessible();
    node.role = Role::Chart;
    node.readOnly = true;
    for (const int row : withValue_) {
        if (!node.value.empty()) node.value += "; ";
        node.value += Row(row).label + ": " + data::NumberText(*Row(row).value);
    }
    return node;
}

int Chart::AccessibleChildCount() const {
    return static_cast<int>(withValue_.size());
}

AccessibleNode Chart::AccessibleChild(int child) const {
    if (child < 0 || child >= static_cast<int>(withValue_.size())) return {};
    const int row = withValue_[static_cast<std::size_t>(child)];
    AccessibleNode node;
    node.role = Role::Graphic;
    node.name = Row(row).label;
    node.value = data::NumberText(*Row(row).value);
    node.readOnly = true;
    node.bounds = {(row - 1) * ColumnWidth(), 0, ColumnWidth(), Bounds().height};
    return node;
}

int Chart::AccessibleChildAt(Point place) const {
    const int row = place.x / std::max(1, ColumnWidth()) + 1;
    const auto found = std::ranges::lower_bound(withValue_, row);
    return found != withValue_.end() && *found == row ? static_cast<int>(found - withValue_.begin()) : -1;
}

}  // namespace tavrin::forms
