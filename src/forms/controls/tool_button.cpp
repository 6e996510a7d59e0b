#include "forms/controls/tool_button.h"

#include "forms/controls/look.h"
#include "forms/model/form.h"

namespace tavrin::forms {

namespace {

constexpr int PicturePadding = 45;  ///< twips
constexpr int SunkenShift = 15;     ///< twips to the right and down
constexpr int MarkHeight = 30;      ///< twips; the line under the picture of a button that is on

}  // namespace

ToolButton::ToolButton(Container& parent, std::string_view name, Rect bounds) : Image(parent, name, bounds) {}

void ToolButton::SetLook(ToolLook look) {
    if (look_ == look) return;
    look_ = look;
    Repaint();
}

void ToolButton::SetChecked(bool checked) {
    if (checked_ == checked) return;
    checked_ = checked;
    Repaint();
}

Color ToolButton::FaceColor() const {
    if (look_ == ToolLook::Sunken) return scheme::FacePressed;
    if (look_ == ToolLook::Raised || HasFocus()) return scheme::FaceHot;
    return checked_ ? scheme::Checked : BackColor();
}

void ToolButton::Draw(Surface& surface) const {
    const Rect area = look::AreaOf(*this);
    surface.FillRectangle(area, FaceColor());
    if (HasFocus() || look_ != ToolLook::Resting) look::DrawBorder(surface, *this);
    const int shift = look_ == ToolLook::Sunken ? SunkenShift : 0;
    Rect picture = area.Inset(PicturePadding);
    picture.left += shift;
    picture.top += shift;
    DrawIcon(surface, Picture(), picture, look::TextStyleOf(*this).color);
    if (!checked_) return;
    const int side = 2 * MarkHeight;
    surface.FillRectangle(
        {area.left + side, area.Bottom() - 2 * MarkHeight, area.width - 2 * side, MarkHeight}, scheme::Value);
}

AccessibleNode ToolButton::Accessible() const {
    AccessibleNode node = Image::Accessible();
    node.pressed = node.pressed || checked_;
    return node;
}

KeyOutcome ToolButton::DefaultKeyDown(int keyCode, Modifiers modifiers) {
    if (modifiers.alt || modifiers.control) return Image::DefaultKeyDown(keyCode, modifiers);
    switch (keyCode) {
        case key::Enter:
        case key::Space:
            Click();
            break;
        case key::Right:
            OwnerForm().FocusNext();
            break;
        case key::Left:
            OwnerForm().FocusPrevious();
            break;
        default:
            return Image::DefaultKeyDown(keyCode, modifiers);
    }
    return KeyOutcome::Done;
}

}  // namespace tavrin::forms
