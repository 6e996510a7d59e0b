#pragma once

#include <memory>

#include "forms/date_picker.h"
#include "win32/calendar_popup.h"
#include "win32/drawn_peer.h"

namespace tavrin::win32 {

/// A date field: it draws itself, and opens the platform's calendar.
class DatePickerPeer final : public DrawnPeer {
  public:
    DatePickerPeer(forms::DatePicker& control, FormPeer& form);

    /// Opens the calendar, or closes it when it is open.
    void DropDown() override;

  private:
    forms::DatePicker& control_;
    std::unique_ptr<CalendarPopup> calendar_;
};

}  // namespace tavrin::win32
