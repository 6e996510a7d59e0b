#pragma once

#include <memory>

#include "forms/controls/date_picker.h"
#include "win32/peers/calendar_popup.h"
#include "win32/peers/drawn_peer.h"

namespace tavrin::win32 {

/// A date field: it draws itself, and opens the platform's calendar, which stands on the field's day and
/// closes when the field takes another.
class DatePickerPeer final : public DrawnPeer {
  public:
    DatePickerPeer(forms::DatePicker& control, FormPeer& form);

    void Changed(forms::Aspect aspect) override;
    /// Opens the calendar, or closes it when it is open.
    void DropDown() override;

  private:
    CalendarPopup::Days FieldDays() const;
    void Forget();

    forms::DatePicker& control_;
    std::unique_ptr<CalendarPopup> calendar_;
    CalendarPopup::Days shown_;
};

}  // namespace tavrin::win32
