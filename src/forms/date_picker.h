#pragma once

#include <string>

#include "data/date.h"
#include "data/value.h"
#include "forms/control.h"

namespace tavrin::forms {

/// A field for one day. Left and Right choose day, month or year, Up and Down change it, digits type it,
/// Alt+Down or F4 opens the platform's calendar. The value is a whole day within the range.
class DatePicker : public Control {
  public:
    /// `customFormat` knows dd, MM, MMM (the locale's abbreviation), yy and yyyy; all else stands as it is.
    DatePicker(Container& parent, std::string name, std::string customFormat, Rect bounds = {});
    ControlKind Kind() const override { return ControlKind::DatePicker; }

    data::OleDate Date() const { return value_; }
    /// Drops a time of day; a day outside the range becomes the nearest day inside it.
    void SetDate(data::OleDate date);
    data::OleDate MinDate() const { return minDate_; }
    data::OleDate MaxDate() const { return maxDate_; }
    /// Both ends belong to the range. The value is moved into it.
    void SetRange(data::OleDate minDate, data::OleDate maxDate);

    /// The value in the custom format.
    std::string Text() const;

    /// Entry point of the calendar: the user chose a day.
    void HandleChosen(data::OleDate date);

    bool IsFocusable() const override { return true; }
    void HandleWheel(int notches) override;
    void Draw(Surface& surface) const override;
    AccessibleNode Accessible() const override;

  protected:
    KeyOutcome DefaultKeyDown(int keyCode, Modifiers modifiers) override;
    KeyOutcome DefaultKeyPress(char32_t character) override;
    void DefaultMouseDown(const MouseInput& input) override;
    bool ClicksOnMouseUp() const override { return false; }

  private:
    std::string customFormat_;
    data::OleDate value_;
    data::OleDate minDate_;
    data::OleDate maxDate_;
};

}  // namespace tavrin::forms
