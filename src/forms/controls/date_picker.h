#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/text/date.h"
#include "data/text/date_format.h"
#include "data/value.h"
#include "forms/model/control.h"

namespace tavrin::forms {

/// A field for one day. Left and Right choose day, month or year, Up and Down change it, digits type it,
/// Alt+Down or F4 opens the platform's calendar. The value is a whole day within the range, and that within
/// the days from 1753 to 9999 that calendars and databases take. onChange tells of every new value, whoever
/// set it.
class DatePicker : public Control {
  public:
    /// `customFormat` knows dd, MM, MMM (the locale's abbreviation), yy and yyyy; all else stands as it is.
    DatePicker(Container& parent, std::string_view name, const std::string& customFormat, Rect bounds = {});
    ControlKind Kind() const override { return ControlKind::DatePicker; }

    data::OleDate Date() const { return value_; }
    /// Drops a time of day; a day outside the range becomes the nearest day inside it. What is no number is
    /// ignored.
    void SetDate(data::OleDate date);
    data::OleDate MinDate() const { return minDate_; }
    data::OleDate MaxDate() const { return maxDate_; }
    /// Both ends belong to the range; an end before the start leaves the start alone in it. The value is
    /// moved into it, as an end is that lies where no calendar reaches.
    void SetRange(data::OleDate minDate, data::OleDate maxDate);

    /// The value in the custom format.
    std::string Text() const;
    /// The part that Up, Down and digits change.
    data::DatePart ActivePart() const;

    /// Entry points of the calendar: the user chose a day; it has opened or closed.
    void HandleChosen(data::OleDate date) {
        if (AcceptsInput()) SetDate(date);
    }

    void HandleDropped(bool dropped);

    bool IsFocusable() const override { return true; }
    void HandleWheel(int notches) override;
    void Draw(Surface& surface) const override;
    AccessibleNode Accessible() const override;

  protected:
    KeyOutcome DefaultKeyDown(int keyCode, Modifiers modifiers) override;
    KeyOutcome DefaultKeyPress(char32_t character) override;
    void CompleteInput(int keyCode) override;
    void DefaultMouseDown(const MouseInput& input) override;
    bool ClicksOnMouseUp() const override { return false; }

  private:
    void Take(data::OleDate date);
    void Step(int step);
    void TypeDigit(int digit);
    void ApplyTyped();
    void EndTyping();
    void ActivatePiece(std::size_t piece);
    void ActivateNeighbour(int step);
    void DropDown();
    /// What a piece reads: while it is being typed, the digits so far.
    std::string ShownText(std::size_t piece) const;

    std::vector<data::DatePiece> pieces_;
    data::OleDate value_;
    data::OleDate minDate_;
    data::OleDate maxDate_;
    std::size_t active_ = 0;
    std::string typed_;
    bool dropped_ = false;  ///< the calendar is open
    /// The day as the user is typing it, part after part; it need not exist nor lie in the range yet.
    data::CalendarDay wanted_;
    /// Where the pieces began when they were last drawn, for the mouse.
    mutable std::vector<int> drawnAt_;
};

}  // namespace tavrin::forms
