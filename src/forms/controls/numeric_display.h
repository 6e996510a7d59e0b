#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "forms/model/control.h"

namespace tavrin::forms {

/// A label that holds a number and sets it for reading in the user's locale, a unit beside it. A number that
/// would not fit is drawn in a smaller font, so that no digit is ever cut off. Takes no focus.
class NumericDisplay : public Control {
  public:
    static constexpr std::uint8_t MaxDecimals = 6;

    NumericDisplay(Container& parent, std::string_view name, Rect bounds = {});

    double Value() const { return value_; }
    /// Kept as it is; only the shown text is rounded.
    void SetValue(double value);
    std::uint8_t Decimals() const { return decimals_; }
    void SetDecimals(std::uint8_t decimals);  ///< more than MaxDecimals count as MaxDecimals
    /// Whether this is the display that the user works in; it is drawn brighter.
    bool Active() const { return active_; }
    void SetActive(bool active);
    const std::string& UnitText() const { return unitText_; }
    void SetUnitText(std::string unitText);

    /// The number as it is shown, without the unit.
    const std::string& Text() const { return text_; }

    void Draw(Surface& surface) const override;
    AccessibleNode Accessible() const override;

  private:
    void Format();

    double value_ = 0;
    std::uint8_t decimals_ = 2;
    bool active_ = false;
    std::string unitText_;
    std::string text_;
};

}  // namespace tavrin::forms
