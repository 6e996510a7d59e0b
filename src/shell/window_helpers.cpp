#include "shell/window_helpers.h"

#include "forms/controls/text_box.h"
#include "shell/layout.h"

namespace tavrin::shell {

namespace {
constexpr std::uint8_t DarkMode = 1;
}

void MoveByCaption(forms::Form& form) {
    form.DragByCaption();
}

void ApplyDarkScheme(forms::Form& form, std::uint8_t mode) {
    if (mode != DarkMode) return;
    form.SetBackColor(forms::Black);
    for (forms::Control* control : form.AllControls()) {
        auto* textBox = dynamic_cast<forms::TextBox*>(control);
        if (textBox == nullptr) continue;
        textBox->SetBordered(true);
        textBox->SetBackColor(forms::Black);
        textBox->SetForeColor(forms::Green);
    }
}

void PlaceAnswers(forms::Control& accept, forms::Control& cancel, forms::Point topLeft, int width) {
    const int each = layout::RoundedDown((width - layout::Gap) / 2);
    accept.SetBounds({topLeft.x, topLeft.y, each, layout::ButtonHeight});
    cancel.SetBounds({topLeft.x + width - each, topLeft.y, each, layout::ButtonHeight});
}

}  // namespace tavrin::shell
