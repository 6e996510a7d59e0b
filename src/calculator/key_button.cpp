#include "calculator/key_button.h"

#include "forms/look.h"

namespace tavrin::calculator {

namespace {

namespace look = forms::look;

struct Cap {
    forms::Color face;
    forms::Color hot;
    forms::Color pressed;
    forms::Color text;
    double points;
    bool bold;
};

constexpr forms::Color Salmon = 0x8C8CFF;
constexpr forms::Color PaleGreen = 0xD8FFD8;

const Cap& CapOf(KeyKind kind) {
    static constexpr Cap digit{0x343434, 0x444444, 0x1C1C1C, forms::scheme::Value, 14, true};
    static constexpr Cap operation{0x1E361E, 0x2A4C2A, 0x0E1C0E, forms::scheme::Value, 14, false};
    static constexpr Cap result{0x006400, 0x008000, 0x003C00, PaleGreen, 16, true};
    static constexpr Cap clear{0x222238, 0x30304E, 0x12121E, Salmon, 11, true};
    static constexpr Cap memory{0x202020, 0x303030, 0x121212, forms::scheme::Text, 9, false};
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

constexpr int PressDepth = 15;  ///< twips by which the caption of a pressed key sinks

}  // namespace

void KeyButton::SetKind(KeyKind kind) {
    kind_ = kind;
    const Cap& cap = CapOf(kind);
    SetForeColor(cap.text);
    SetFont({.face = "Arial", .points = cap.points, .bold = cap.bold});
}

forms::Color KeyButton::FaceColor() const {
    const Cap& cap = CapOf(kind_);
    if (!IsEffectivelyEnabled()) return forms::scheme::Window;
    if (IsPressed() && IsHot()) return cap.pressed;
    return IsHot() || HasFocus() ? cap.hot : cap.face;
}

void KeyButton::Draw(forms::Surface& surface) const {
    forms::Rect area = look::AreaOf(*this);
    surface.FillRectangle(area, FaceColor());
    look::DrawBorder(surface, *this);
    if (IsPressed() && IsHot()) area.top += 2 * PressDepth;
    forms::TextStyle style = look::TextStyleOf(*this);
    style.align = forms::Align::Center;
    surface.DrawText(Caption(), area, style);
}

}  // namespace tavrin::calculator
