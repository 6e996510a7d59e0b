#include "win32/peers/peer_factory.h"

#include "win32/peers/combo_peer.h"
#include "win32/peers/date_picker_peer.h"
#include "win32/peers/decoration_peer.h"
#include "win32/peers/drawn_peer.h"
#include "win32/peers/edit_peer.h"
#include "win32/peers/rich_edit_peer.h"

namespace tavrin::win32 {

std::unique_ptr<forms::ControlPeer> CreateControlPeer(forms::Control& control, FormPeer& form) {
    switch (control.Kind()) {
        case forms::ControlKind::TextBox:
            return std::make_unique<EditPeer>(dynamic_cast<forms::TextBox&>(control), form);
        case forms::ControlKind::ComboBox:
            return std::make_unique<ComboPeer>(dynamic_cast<forms::ComboBox&>(control), form);
        case forms::ControlKind::DatePicker:
            return std::make_unique<DatePickerPeer>(dynamic_cast<forms::DatePicker&>(control), form);
        case forms::ControlKind::RichText:
            return std::make_unique<RichEditPeer>(dynamic_cast<forms::RichTextBox&>(control), form);
        case forms::ControlKind::Decoration:
            return std::make_unique<DecorationPeer>(control, form);
        case forms::ControlKind::Drawn:
            break;
    }
    return std::make_unique<DrawnPeer>(control, form);
}

}  // namespace tavrin::win32
