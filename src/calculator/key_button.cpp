#include "calculator/key_button.h"

#include "forms/controls/look.h"

namespace tavrin::calculator {

namespace {

namespace look = forms::look;

struct Cap {
    forms::Color face;
    forms::Color hot;
    forms::Color text;
};

constexpr forms::Color Salmon = 0x8C8CFF;
constexpr forms::Color PaleGreen = 0xD8FFD8;

const Cap& CapOf(KeyKind kind) {
    static constexpr Cap digit{0x343434, 0x444444, forms::scheme::Value};
    static constexpr Cap operation{0x1E361E, 0x2A4C2A, forms::scheme::Value};
    static constexpr Cap result{0x006400, 0x008000, PaleGreen};
    static constexpr Cap clear{0x222238, 0x30304E, Salmon};
    static constexpr Cap memory{0x202020, 0x303030, forms::scheme::Text};
    switch (kind) {
        case KeyKind::Operator:
            return operation;
        case KeyKind::Result:
            return result;
        case KeyKind::Clear:
            return clear;
        case KeyKind::Memory:
            return memory;
        default:
            return digit;
    }
}

constexpr double Points = 14;   ///< of every key
constexpr int PressDepth = 15;  ///< twips by which the caption of a pressed key sinks

}  // namespace

void KeyButton::SetKind(KeyKind kind) {
    kind_ = kind;
    const Cap& cap = CapOf(kind);
    SetForeColor(cap.text);
    SetFont({.face = "Arial", .points = Points, .bold = true});
}

void KeyButton::SetStruck(bool struck) {
    if (isStruck_ == struck) return;
    isStruck_ = struck;
    Repaint();
}

forms::KeyOutcome KeyButton::DefaultKeyDown(int keyCode, forms::Modifiers modifiers) {
    const bool presses = keyCode == forms::key::Enter || keyCode == forms::key::Space;
    if (presses && !modifiers.alt && !modifiers.control) SetStruck(true);
    return CommandButton::DefaultKeyDown(keyCode, modifiers);
}

forms::Color KeyButton::FaceColor() const {
    const Cap& cap = CapOf(kind_);
    if (!IsEffectivelyEnabled()) return forms::scheme::Window;
    if (IsHeldDown()) return cap.text;
    return IsHot() || HasFocus() ? cap.hot : cap.face;
}

void KeyButton::Draw(forms::Surface& surface) const {
    forms::Rect area = look::AreaOf(*this);
    surface.FillRectangle(area, FaceColor());
    look::DrawBorder(surface, *this);
    if (IsHeldDown()) area.top += 2 * PressDepth;
    forms::TextStyle style = look::TextStyleOf(*this);
    style.align = forms::Align::Center;
    if (IsHeldDown()) style.color = forms::Black;
    surface.DrawText(Caption(), area, style);
}

}  // namespace tavrin::calculator
