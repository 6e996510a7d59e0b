#include "win32/date_picker_peer.h"

namespace tavrin::win32 {

DatePickerPeer::DatePickerPeer(forms::DatePicker& control, FormPeer& form)
    : DrawnPeer(control, form), control_(control) {}

void DatePickerPeer::DropDown() {
    if (calendar_) return calendar_->Close();
    if (Handle() == nullptr) return;
    CalendarPopup::Settings settings{.value = control_.Date(),
                                     .minimum = control_.MinDate(),
                                     .maximum = control_.MaxDate(),
                                     .form = OwnerPeer().Handle(),
                                     .field = {}};
    GetWindowRect(Handle(), &settings.field);
    calendar_ = std::make_unique<CalendarPopup>(
        OwnerForm().OwnerDesktop(), SharedToolkit(), settings,
        [this](data::OleDate date) { control_.HandleChosen(date); }, [this] { calendar_.reset(); });
}

}  // namespace tavrin::win32
