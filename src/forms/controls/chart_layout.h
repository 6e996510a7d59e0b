#pragma once

#include <string>
#include <vector>

#include "forms/drawing/geometry.h"

namespace tavrin::forms {

/// Where the parts of a chart lie, worked out apart from any drawing. All places are twips from the chart's
/// top left corner.
struct ChartScale {
    Rect plot;
    double minimum = 0;
    double maximum = 0;
    int rows = 0;

    /// The middle of a row's column; rows are counted from 1.
    double RowX(int row) const;
    /// The maximum lies on the plot's upper edge, the minimum on its lower one; a scale without extent puts
    /// every value in the middle.
    double ValueY(double value) const;
};

/// The marks of a value axis: round numbers strictly between the ends, and the two ends themselves. Round
/// numbers that would crowd an end are left out. `most` limits their number.
std::vector<double> AxisTicks(double minimum, double maximum, int most);

/// How many rows lie from one label to the next so that labels of `labelWidth` twips do not touch.
int LabelStep(const ChartScale& scale, int labelWidth);

}  // namespace tavrin::forms
