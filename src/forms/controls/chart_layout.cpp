#include "forms/controls/chart_layout.h"

#include <algorithm>
#include <cmath>

namespace tavrin::forms {

namespace {

/// The smallest of 1, 2, 5, 10, 20, 50, ... that is not below `step`.
double RoundStep(double step) {
    const double magnitude = std::pow(10, std::floor(std::log10(step)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * magnitude >= step) return factor * magnitude;
    }
    return 10 * magnitude;
}

}  // namespace

double ChartScale::RowX(int row) const {
    return plot.left + (row - 0.5) * plot.width / std::max(1, rows);
}

double ChartScale::ValueY(double value) const {
    if (!(maximum > minimum)) return plot.top + plot.height / 2.0;
    return plot.Bottom() - (value - minimum) / (maximum - minimum) * plot.height;
}

std::vector<double> AxisTicks(double minimum, double maximum, int most) {
    const double extent = maximum - minimum;
    if (!(extent > 0) || !std::isfinite(extent)) return {minimum};
    std::vector<double> ticks = {minimum};
    const double step = RoundStep(extent / std::max(1, most - 1));
    // A round number must keep half a step's distance from the ends, where the ends' own marks stand.
    const double first = std::ceil((minimum + step / 2) / step);
    const double last = std::floor((maximum - step / 2) / step);
    for (double k = first; k <= last; ++k)
        ticks.push_back(k * step);
    ticks.push_back(maximum);
    return ticks;
}

int LabelStep(const ChartScale& scale, int labelWidth) {
    if (scale.rows == 0 || scale.plot.width <= 0) return 1;
    const double column = static_cast<double>(scale.plot.width) / scale.rows;
    return std::max(1, static_cast<int>(std::ceil(labelWidth / column)));
}

}  // namespace tavrin::forms
