#include "forms/controls/image.h"

#include "forms/controls/look.h"

namespace tavrin::forms {

Image::Image(Container& parent, std::string_view name, Rect bounds) : Control(parent, name, bounds) {}

void Image::SetPicture(Icon picture) {
    if (picture_ == picture) return;
    picture_ = picture;
    Repaint();
}

bool Image::IsClickable() const {
    return onClick || onMouseDown || onMouseUp;
}

void Image::Draw(Surface& surface) const {
    const Rect area = look::AreaOf(*this);
    const bool lit = IsClickable() && IsHot() && IsEffectivelyEnabled();
    surface.FillRectangle(area, lit ? scheme::FaceHot : BackColor());
    DrawIcon(surface, picture_, area.Inset(look::FocusWidth), look::TextStyleOf(*this).color);
}

AccessibleNode Image::Accessible() const {
    AccessibleNode node = Control::Accessible();
    node.role = IsClickable() ? Role::PushButton : Role::Graphic;
    return node;
}

}  // namespace tavrin::forms
