#include "forms/controls/numeric_display.h"

#include <gtest/gtest.h>

#include <limits>

#include "data/text/grouped_number.h"
#include "forms/model/form.h"
#include "support/headless_desktop.h"

namespace tavrin::tests {
namespace {

using forms::NumericDisplay;

struct Shown {
    double number;
    int decimals;
    std::string_view text;
};

TEST(GroupedNumber, GroupsTheDigitsInTheLocale) {
    const data::Locale romanian;
    for (const Shown& shown :
         {Shown{0, 0, "0"}, Shown{0, 2, "0,00"}, Shown{5, 2, "5,00"}, Shown{0.05, 2, "0,05"},
          Shown{123, 0, "123"}, Shown{1000, 0, "1.000"}, Shown{999999, 0, "999.999"},
          Shown{1000000, 6, "1.000.000,000000"}, Shown{1005, 2, "1.005,00"}, Shown{1000.05, 2, "1.000,05"},
          Shown{-1234.5, 2, "-1.234,50"}, Shown{123456789012345, 2, "123.456.789.012.345,00"},
          Shown{9e15, 0, "9.000.000.000.000.000"}, Shown{9e15, 2, "9.000.000.000.000.000,00"},
          Shown{123456789012345680.0, 6, "123.456.789.012.346.000,000000"},
          Shown{-12345678901.5, 6, "-12.345.678.901,500000"},
          Shown{9e20, 2, "900.000.000.000.000.000.000,00"}}) {
        std::string text;
        data::WriteGroupedNumber(text, shown.number, shown.decimals, romanian);
        EXPECT_EQ(text, shown.text);
    }
}

TEST(GroupedNumber, RoundsTiesToTheEvenDigit) {
    for (const Shown& shown :
         {Shown{0.125, 2, "0,12"}, Shown{0.375, 2, "0,38"}, Shown{2.5, 0, "2"}, Shown{1.005, 2, "1,00"},
          Shown{1.015, 2, "1,02"}, Shown{2.675, 2, "2,68"}, Shown{14.5 * 19 / 100, 2, "2,76"},
          Shown{999.995, 2, "1.000,00"}, Shown{-0.004, 2, "0,00"}, Shown{-0.006, 2, "-0,01"}}) {
        std::string text;
        data::WriteGroupedNumber(text, shown.number, shown.decimals, {});
        EXPECT_EQ(text, shown.text) << shown.number;
    }
}

TEST(GroupedNumber, WritesEnormousNumbersWithAnExponent) {
    for (const Shown& shown : {Shown{1e21, 2, "1E+21"}, Shown{-1.5e25, 0, "-1,5E+25"},
                               Shown{std::numeric_limits<double>::max(), 6, "1,79769313486232E+308"},
                               Shown{std::numeric_limits<double>::infinity(), 2, ""},
                               Shown{std::numeric_limits<double>::quiet_NaN(), 2, ""}}) {
        std::string text = "left over";
        data::WriteGroupedNumber(text, shown.number, shown.decimals, {});
        EXPECT_EQ(text, shown.text);
    }
}

TEST(GroupedNumber, TakesTheSeparatorsOfAnyLocale) {
    data::Locale locale;
    locale.decimalSeparator = "\xD9\xAB";
    locale.thousandsSeparator = "\xC2\xA0";
    std::string text;
    data::WriteGroupedNumber(text, 1234567.5, 2, locale);
    EXPECT_EQ(text,
              "1\xC2\xA0"
              "234\xC2\xA0"
              "567\xD9\xAB"
              "50");
    locale.thousandsSeparator = "";
    data::WriteGroupedNumber(text, 1234567, 0, locale);
    EXPECT_EQ(text, "1234567");
}

/// Every character is half as wide as its font is high.
class MeasuringSurface : public forms::Surface {
  public:
    struct Drawn {
        std::string text;
        forms::Rect area;
        forms::TextStyle style;
    };

    double PixelSize() const override { return 15; }
    void FillRectangle(const forms::Rect&, forms::Color color) override { background = color; }
    using Surface::DrawFrame;
    void DrawFrame(const forms::Rect&, forms::Color, int) override {}
    void FillPolygon(std::span<const forms::PointF>, forms::Color) override {}
    void DrawPolyline(std::span<const forms::PointF>, double, forms::Color) override {}
    void DrawText(std::string_view text, const forms::Rect& area, const forms::TextStyle& style) override {
        drawn.push_back({std::string(text), area, style});
    }
    forms::Size MeasureText(std::string_view text, const forms::Font& font) override {
        return {static_cast<int>(static_cast<double>(text.size()) * font.points * 10),
                static_cast<int>(font.points * 20)};
    }
    void PushClip(const forms::Rect&) override {}
    void PopClip() override {}

    forms::Color background = 1;
    std::vector<Drawn> drawn;
};

class NumericDisplayTest : public testing::Test {
  protected:
    NumericDisplayTest() { display.SetFont({.face = "Arial", .points = 20, .bold = true}); }

    MeasuringSurface::Drawn DrawnNumber() {
        surface.drawn.clear();
        display.Draw(surface);
        return surface.drawn.back();
    }

    HeadlessDesktop desktop;
    forms::Form form{desktop, "Form", "Form", forms::BorderStyle::Borderless};
    NumericDisplay display{form, "ValLei", {0, 0, 3000, 600}};
    MeasuringSurface surface;
};

TEST_F(NumericDisplayTest, ShowsItsValueRoundedAndKeepsIt) {
    EXPECT_EQ(display.Text(), "0,00");
    display.SetValue(1234.5678);
    EXPECT_EQ(display.Text(), "1.234,57");
    EXPECT_EQ(display.Value(), 1234.5678);
    display.SetDecimals(4);
    EXPECT_EQ(display.Text(), "1.234,5678");
    display.SetDecimals(0);
    EXPECT_EQ(display.Text(), "1.235");
    display.SetDecimals(200);
    EXPECT_EQ(display.Decimals(), NumericDisplay::MaxDecimals);
    EXPECT_EQ(display.Text(), "1.234,567800");
}

TEST_F(NumericDisplayTest, FollowsTheUsersLocale) {
    desktop.locale.decimalSeparator = ".";
    desktop.locale.thousandsSeparator = ",";
    form.Load();
    display.SetValue(1234.5);
    EXPECT_EQ(display.Text(), "1,234.50");
}

TEST_F(NumericDisplayTest, TellsAssistiveToolsWhatItShows) {
    display.SetAccessibleName("Lei");
    display.SetUnitText("EUR");
    display.SetValue(1234.5);
    const forms::AccessibleNode node = display.Accessible();
    EXPECT_EQ(node.role, forms::Role::StaticText);
    EXPECT_EQ(node.name, "Lei: 1.234,50 EUR");
    EXPECT_EQ(node.value, "1.234,50");
    EXPECT_EQ(node.description, "EUR");
    EXPECT_TRUE(node.readOnly);
    EXPECT_FALSE(node.focusable);
    display.SetUnitText("Lei");
    EXPECT_EQ(display.Accessible().name, "Lei: 1.234,50") << "a unit that is the name is said once";
}

TEST_F(NumericDisplayTest, DrawsTheNumberAtTheRightInItsOwnFontWhereThereIsRoom) {
    display.SetValue(1234.5);
    const auto drawn = DrawnNumber();
    EXPECT_EQ(drawn.text, "1.234,50");
    EXPECT_EQ(drawn.style.align, forms::Align::Right);
    EXPECT_EQ(drawn.style.font, (forms::Font{.face = "Arial", .points = 20, .bold = true}));
    EXPECT_EQ(surface.drawn.size(), 1U) << "no unit is drawn where there is none";
}

TEST_F(NumericDisplayTest, ShrinksTheFontBeforeADigitIsCut) {
    for (const double value : {1e6, 1e9, 1e12, 1e15, 9e20, -9.99999999999999e20}) {
        display.SetValue(value);
        display.SetDecimals(6);
        const auto drawn = DrawnNumber();
        EXPECT_LE(surface.MeasureText(drawn.text, drawn.style.font).width, drawn.area.width) << drawn.text;
        EXPECT_LT(drawn.style.font.points, 20) << drawn.text;
    }
}

TEST_F(NumericDisplayTest, ShrinksNoFurtherThanItMust) {
    display.SetValue(1234567890);
    const auto drawn = DrawnNumber();
    forms::Font larger = drawn.style.font;
    larger.points += 0.5;
    EXPECT_GT(surface.MeasureText(drawn.text, larger).width, drawn.area.width);
}

TEST_F(NumericDisplayTest, KeepsTheUnitBesideTheNumber) {
    display.SetUnitText("EUR");
    display.SetValue(12345678.9);
    const auto number = DrawnNumber();
    ASSERT_EQ(surface.drawn.size(), 2U);
    const auto& unit = surface.drawn.front();
    EXPECT_EQ(unit.text, "EUR");
    EXPECT_LE(number.area.Right(), unit.area.left);
    EXPECT_LE(unit.area.Right(), display.Bounds().width);
    EXPECT_LT(unit.style.font.points, 20);
    EXPECT_LE(surface.MeasureText(number.text, number.style.font).width, number.area.width);
}

TEST_F(NumericDisplayTest, LeavesALongUnitOnlyItsShare) {
    display.SetUnitText("O MONEDA CU UN NUME FOARTE LUNG");
    EXPECT_GE(DrawnNumber().area.width, display.Bounds().width / 2);
}

TEST_F(NumericDisplayTest, IsBrighterWhileActive) {
    EXPECT_EQ(DrawnNumber().style.color, forms::scheme::Text);
    display.SetActive(true);
    EXPECT_TRUE(display.Active());
    EXPECT_EQ(DrawnNumber().style.color, forms::scheme::Value);
    display.SetEnabled(false);
    EXPECT_EQ(DrawnNumber().style.color, forms::scheme::TextDisabled);
}

TEST_F(NumericDisplayTest, PaintsItsBackground) {
    DrawnNumber();
    EXPECT_EQ(surface.background, forms::Black);
    display.SetBackColor(forms::FocusGrey);
    DrawnNumber();
    EXPECT_EQ(surface.background, forms::FocusGrey);
}

}  // namespace
}  // namespace tavrin::tests
