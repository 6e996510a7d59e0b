#include "win32/peers/date_picker_peer.h"

namespace tavrin::win32 {

DatePickerPeer::DatePickerPeer(forms::DatePicker& control, FormPeer& form)
    : DrawnPeer(control, form), control_(control) {}

void DatePickerPeer::Changed(forms::Aspect aspect) {
    DrawnPeer::Changed(aspect);
    if (calendar_ && (shown_ != FieldDays() || !control_.CanTakeFocus())) calendar_->Close();
}

CalendarPopup::Days DatePickerPeer::FieldDays() const {
    return {control_.Date(), control_.MinDate(), control_.MaxDate()};
}

void DatePickerPeer::DropDown() {
    if (calendar_) return calendar_->Close();
    if (Handle() == nullptr) return;
    shown_ = FieldDays();
    CalendarPopup::Settings settings{
        .days = shown_, .form = OwnerPeer().Handle(), .field = {}, .font = PlatformFont()};
    GetWindowRect(Handle(), &settings.field);
    calendar_ = std::make_unique<CalendarPopup>(
        OwnerForm().OwnerDesktop(), SharedResources(), settings,
        [this](data::OleDate date) { control_.HandleChosen(date); }, [this] { Forget(); });
    control_.HandleDropped(true);
}

/// The calendar calls this, and is gone at the end of it.
void DatePickerPeer::Forget() {
    control_.HandleDropped(false);
    calendar_.reset();
}

}  // namespace tavrin::win32
