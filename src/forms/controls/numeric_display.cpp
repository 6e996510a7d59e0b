#include "forms/controls/numeric_display.h"

#include <algorithm>
#include <utility>

#include "data/text/grouped_number.h"
#include "forms/controls/look.h"
#include "forms/model/form.h"

namespace tavrin::forms {

namespace {

constexpr int Padding = 2 * look::Padding;
constexpr double SmallestPoints = 6;
constexpr double PointStep = 0.5;
constexpr double UnitShare = 0.45;  ///< the unit's font size as a part of the number's
constexpr double SmallestUnitPoints = 9;
constexpr int WidestUnitPart = 3;  ///< the unit takes at most this part of the width

/// The font in the largest size, not above its own, in which the text is no wider than `width`.
Font FittingFont(Surface& surface, const std::string& text, Font font, int width) {
    while (font.points > SmallestPoints && surface.MeasureText(text, font).width > width) {
        font.points -= PointStep;
    }
    return font;
}

}  // namespace

NumericDisplay::NumericDisplay(Container& parent, std::string_view name, Rect bounds)
    : Control(parent, name, bounds) {
    SetBackColor(scheme::Field);
    Format();
}

void NumericDisplay::SetValue(double value) {
    value_ = value;
    Format();
}

void NumericDisplay::SetDecimals(std::uint8_t decimals) {
    decimals_ = std::min(decimals, MaxDecimals);
    Format();
}

void NumericDisplay::SetActive(bool active) {
    if (active_ == active) return;
    active_ = active;
    Repaint();
}

void NumericDisplay::SetUnitText(std::string unitText) {
    if (unitText_ == unitText) return;
    unitText_ = std::move(unitText);
    Repaint();
}

void NumericDisplay::Format() {
    data::WriteGroupedNumber(text_, value_, decimals_, OwnerForm().UserLocale());
    Repaint();
}

void NumericDisplay::Draw(Surface& surface) const {
    const Rect area = look::AreaOf(*this);
    surface.FillRectangle(area, BackColor());
    TextStyle style = look::TextStyleOf(*this);
    style.align = Align::Right;
    if (active_ && IsEffectivelyEnabled()) style.color = scheme::Value;

    Rect number = area.Inset(Padding, 0);
    if (!unitText_.empty()) {
        TextStyle unit = style;
        unit.font.bold = false;
        unit.font.points = std::max(SmallestUnitPoints, style.font.points * UnitShare);
        unit.font = FittingFont(surface, unitText_, unit.font, number.width / WidestUnitPart);
        const int unitWidth = std::min(surface.MeasureText(unitText_, unit.font).width + look::Padding,
                                       number.width / WidestUnitPart);
        surface.DrawText(unitText_, {number.Right() - unitWidth, 0, unitWidth, area.height}, unit);
        number.width -= unitWidth + look::Padding;
    }
    style.font = FittingFont(surface, text_, style.font, number.width);
    surface.DrawText(text_, number, style);
}

AccessibleNode NumericDisplay::Accessible() const {
    AccessibleNode node = Control::Accessible();
    node.role = Role::StaticText;
    // Tools that read the display out say its name alone.
    node.name += ": " + text_;
    if (unitText_ != AccessibleName()) node.name += " " + unitText_;
    node.value = text_;
    node.description = unitText_;
    node.readOnly = true;
    return node;
}

}  // namespace tavrin::forms
