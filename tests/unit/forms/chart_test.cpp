#include "forms/controls/chart.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/controls/chart_layout.h"
#include "forms/model/form.h"
#include "support/headless_desktop.h"
#include "support/recording_surface.h"

namespace tavrin::tests {
namespace {

using forms::AxisTicks;
using forms::Chart;
using forms::ChartScale;
using forms::Rect;
using testing::DoubleEq;
using testing::ElementsAre;
using testing::IsEmpty;

// The layout.

TEST(ChartScaleTest, TheEndsOfTheScaleTouchTheEdgesOfThePlot) {
    const ChartScale scale{{100, 200, 1000, 600}, 25000, 26000, 10};
    EXPECT_DOUBLE_EQ(scale.ValueY(26000), 200);
    EXPECT_DOUBLE_EQ(scale.ValueY(25000), 800);
    EXPECT_DOUBLE_EQ(scale.ValueY(25500), 500);
}

TEST(ChartScaleTest, EqualEndsPutEveryValueInTheMiddle) {
    const ChartScale scale{{100, 200, 1000, 600}, 7, 7, 3};
    EXPECT_DOUBLE_EQ(scale.ValueY(7), 500);
}

TEST(ChartScaleTest, RowsStandInTheMiddleOfEqualColumns) {
    const ChartScale scale{{100, 0, 1000, 1}, 0, 1, 5};
    EXPECT_DOUBLE_EQ(scale.RowX(1), 200);
    EXPECT_DOUBLE_EQ(scale.RowX(5), 1000);
}

TEST(AxisTicksTest, RoundNumbersBetweenTheEnds) {
    EXPECT_THAT(AxisTicks(26849, 27369, 8),
                ElementsAre(DoubleEq(26849), DoubleEq(26900), DoubleEq(27000), DoubleEq(27100),
                            DoubleEq(27200), DoubleEq(27300), DoubleEq(27369)));
}

TEST(AxisTicksTest, NumbersThatWouldCrowdAnEndAreLeftOut) {
    EXPECT_THAT(AxisTicks(0, 101, 3), ElementsAre(DoubleEq(0), DoubleEq(101)));
    EXPECT_THAT(AxisTicks(99, 301, 4), ElementsAre(DoubleEq(99), DoubleEq(200), DoubleEq(301)));
}

TEST(AxisTicksTest, AScaleWithoutExtentHasOneMark) {
    EXPECT_THAT(AxisTicks(5, 5, 8), ElementsAre(5));
    EXPECT_THAT(AxisTicks(5, 4, 8), ElementsAre(5));
    EXPECT_EQ(AxisTicks(0, 1e308 * 10, 8).size(), 1U);
}

TEST(AxisTicksTest, NeverMoreThanAFewMarks) {
    for (double extent = 1e-6; extent < 1e12; extent *= 1.7) {
        EXPECT_LE(AxisTicks(3, 3 + extent, 8).size(), 10U) << extent;
    }
}

TEST(LabelStepTest, LabelsKeepTheirDistance) {
    const ChartScale month{{0, 0, 8000, 1}, 0, 1, 31};
    EXPECT_EQ(forms::LabelStep(month, 250), 1);
    EXPECT_EQ(forms::LabelStep(month, 260), 2);
    EXPECT_EQ(forms::LabelStep({{0, 0, 8000, 1}, 0, 1, 366}, 250), 12);
    EXPECT_EQ(forms::LabelStep({{0, 0, 0, 0}, 0, 1, 0}, 250), 1);
}

// The control.

class ChartForm : public forms::Form {
  public:
    explicit ChartForm(forms::Desktop& desktop)
        : Form(desktop, "ChartForm", "", forms::BorderStyle::Borderless) {
        chart.SetAccessibleName("Evolutie");
    }
    Chart chart{*this, "chart", {0, 0, 9000, 5400}};
};

class ChartTest : public testing::Test {
  protected:
    void Fill(std::initializer_list<std::optional<double>> values) {
        chart.SetRowCount(static_cast<int>(values.size()));
        int row = 0;
        for (const auto& value : values) {
            ++row;
            chart.SetRowLabel(row, std::to_string(row));
            if (value) chart.SetData(row, *value);
        }
    }

    std::vector<Drawn> Draw(Drawing kind) {
        surface = RecordingSurface();
        chart.Draw(surface);
        return surface.AllOf(kind);
    }

    HeadlessDesktop desktop;
    ChartForm form{desktop};
    Chart& chart = form.chart;
    RecordingSurface surface;
};

TEST_F(ChartTest, OneLineJoinsRowsThatFollowEachOther) {
    Fill({1, 3, 2});
    chart.SetValueScale(1, 3);
    EXPECT_EQ(Draw(Drawing::Polyline).size(), 1U);
    EXPECT_EQ(Draw(Drawing::Polygon).size(), 3U) << "a point a value";
}

TEST_F(ChartTest, ARowWithoutAValueLeavesTheLineOpen) {
    Fill({1, 3, std::nullopt, 2, 1});
    chart.SetValueScale(1, 3);
    EXPECT_EQ(Draw(Drawing::Polyline).size(), 2U);
    EXPECT_EQ(Draw(Drawing::Polygon).size(), 4U);
}

TEST_F(ChartTest, ASingleValueIsAPointInTheMiddle) {
    Fill({5});
    chart.SetValueScale(5, 5);
    EXPECT_THAT(Draw(Drawing::Polyline), IsEmpty());
    ASSERT_EQ(Draw(Drawing::Polygon).size(), 1U);
}

TEST_F(ChartTest, ChartsWithoutValuesDrawTheirAxesAlone) {
    Fill({std::nullopt, std::nullopt});
    EXPECT_THAT(Draw(Drawing::Polyline), IsEmpty());
    EXPECT_THAT(Draw(Drawing::Polygon), IsEmpty());
    chart.SetRowCount(0);
    EXPECT_THAT(Draw(Drawing::Polyline), IsEmpty());
}

TEST_F(ChartTest, TheEndsOfTheScaleAndTheRowsAreNamed) {
    Fill({25013, 25500.5, 26999});
    chart.SetValueScale(25013, 26999);
    Draw(Drawing::Text);
    for (const char* text : {"25013", "26999", "26000", "1", "2", "3"}) {
        EXPECT_NE(surface.FindText(text), nullptr) << text;
    }
}

TEST_F(ChartTest, NumbersOfTheAxisAreGroupedWhereAsked) {
    Fill({25013.25, 25500.5, 26999, 0.5});
    chart.SetValueScale(0.5, 1226999.25);
    chart.SetGrouped(true);
    Draw(Drawing::Text);
    for (const char* text : {"0.5", "200,000", "1,000,000", "1,226,999.25"})
        EXPECT_NE(surface.FindText(text), nullptr) << text;
    chart.SetGrouped(false);
    Draw(Drawing::Text);
    EXPECT_NE(surface.FindText("1000000"), nullptr);
}

TEST_F(ChartTest, ATitleStandsAboveThePlot) {
    Fill({1, 3, 2});
    chart.SetValueScale(1, 3);
    Draw(Drawing::Text);
    const int before = surface.FindText("3")->area.top;
    chart.SetTitle("EUR, 2003");
    Draw(Drawing::Text);
    const Drawn* title = surface.FindText("EUR, 2003");
    ASSERT_NE(title, nullptr);
    EXPECT_TRUE(title->style.font.bold);
    EXPECT_LE(title->area.Bottom(), surface.FindText("3")->area.top);
    EXPECT_GT(surface.FindText("3")->area.top, before);
}

TEST_F(ChartTest, TheMarkedRowHasARingAroundItsPoint) {
    Fill({1, 3, std::nullopt});
    chart.SetValueScale(1, 3);
    EXPECT_EQ(Draw(Drawing::Polyline).size(), 1U);
    const auto rings = [this] {
        std::vector<Rect> found;
        for (const Drawn& line : Draw(Drawing::Polyline)) {
            if (line.area.width > 150 && line.area.width < 300) found.push_back(line.area);
        }
        return found;
    };
    for (const int row : {1, 2}) {
        chart.SetMarkedRow(row);
        const std::vector<Drawn> points = Draw(Drawing::Polygon);
        const Rect& point = points[static_cast<std::size_t>(row - 1)].area;
        ASSERT_EQ(rings().size(), 1U) << row;
        const Rect ring = rings().front();
        EXPECT_NEAR(ring.left + ring.width / 2.0, point.left + point.width / 2.0, 15) << row;
        EXPECT_NEAR(ring.top + ring.height / 2.0, point.top + point.height / 2.0, 15) << row;
        EXPECT_THAT(surface.Outside({0, 0, 9000, 5400}), IsEmpty());
    }
    for (const int row : {0, 3, 4}) {
        chart.SetMarkedRow(row);
        EXPECT_THAT(rings(), IsEmpty()) << row;
    }
}

TEST_F(ChartTest, ManyRowsAreDrawnAsALineWithoutPoints) {
    chart.SetRowCount(366);
    for (int row = 1; row <= 366; ++row)
        chart.SetData(row, row);
    chart.SetValueScale(1, 366);
    EXPECT_EQ(Draw(Drawing::Polyline).size(), 1U);
    EXPECT_THAT(Draw(Drawing::Polygon), IsEmpty());
}

TEST_F(ChartTest, NothingIsDrawnOutsideNorCutAtAnyResolution) {
    for (const double pixel : {15.0, 12.0, 10.0, 7.5}) {
        chart.SetRowCount(31);
        for (int row = 1; row <= 31; ++row) {
            chart.SetRowLabel(row, std::to_string(row));
            chart.SetData(row, 20000 + row * 137.25);
        }
        chart.SetValueScale(20137.25, 24254.75);
        surface = RecordingSurface(pixel);
        chart.Draw(surface);
        EXPECT_THAT(surface.Outside({0, 0, 9000, 5400}), IsEmpty());
        EXPECT_THAT(surface.CutTexts(), IsEmpty());
    }
}

TEST_F(ChartTest, RowsOutsideTheCountAreLeftAlone) {
    chart.SetRowCount(2);
    chart.SetData(0, 1);
    chart.SetData(3, 1);
    chart.SetRowLabel(-1, "x");
    chart.SetRowLabel(99, "x");
    EXPECT_EQ(chart.Row(1), Chart::ChartRow{});
    EXPECT_EQ(chart.Row(2), Chart::ChartRow{});
}

TEST_F(ChartTest, RowsCutOffAndAddedAgainAreBlank) {
    Fill({1, 2, 3});
    chart.SetRowCount(1);
    chart.SetRowCount(3);
    EXPECT_EQ(chart.Row(1).value, 1);
    EXPECT_EQ(chart.Row(3), Chart::ChartRow{});
}

TEST_F(ChartTest, AssistiveToolsHearTheValues) {
    Fill({1.5, std::nullopt, 2});
    EXPECT_EQ(chart.Accessible().role, forms::Role::Chart);
    EXPECT_EQ(chart.Accessible().name, "Evolutie");
    EXPECT_EQ(chart.Accessible().value, "1: 1.5; 3: 2");
    ASSERT_EQ(chart.AccessibleChildCount(), 2);
    EXPECT_EQ(chart.AccessibleChild(1).name, "3");
    EXPECT_EQ(chart.AccessibleChild(1).value, "2");
}

TEST_F(ChartTest, AssistiveToolsHearTheValuesFromTheLeftHoweverTheyCame) {
    chart.SetRowCount(4);
    for (const int row : {3, 1, 4, 3})
        chart.SetData(row, row);
    EXPECT_EQ(chart.AccessibleChildCount(), 3);
    EXPECT_EQ(chart.AccessibleChild(1).value, "3");
    chart.SetRowCount(2);
    EXPECT_EQ(chart.AccessibleChildCount(), 1);
    chart.SetRowCount(4);
    EXPECT_EQ(chart.AccessibleChildCount(), 1) << "the rows that are added have no value";
}

TEST_F(ChartTest, TheValueAtAPlaceIsTheOneThatLiesThere) {
    Fill({1.5, std::nullopt, 2});
    EXPECT_EQ(chart.AccessibleChildAt({0, 100}), 0);
    EXPECT_EQ(chart.AccessibleChildAt({2999, 100}), 0);
    EXPECT_EQ(chart.AccessibleChildAt({3000, 100}), -1) << "a row without a value";
    EXPECT_EQ(chart.AccessibleChildAt({8999, 100}), 1);
    chart.SetRowCount(0);
    EXPECT_EQ(chart.AccessibleChildAt({100, 100}), -1);
}

}  // namespace
}  // namespace tavrin::tests
