#include "forms/controls/label.h"

#include "forms/controls/look.h"

namespace tavrin::forms {

Label::Label(Container& parent, std::string_view name, std::string_view caption, Rect bounds)
    : Control(parent, name, bounds), caption_(caption) {}

void Label::SetCaption(std::string_view caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    Repaint();
}

void Label::SetAlign(Align align) {
    align_ = align;
    Repaint();
}

void Label::SetWrap(bool wrap) {
    wrap_ = wrap;
    Repaint();
}

void Label::Draw(Surface& surface) const {
    const Rect area = look::AreaOf(*this);
    surface.FillRectangle(area, BackColor());
    TextStyle style = look::TextStyleOf(*this);
    style.align = align_;
    style.wrap = wrap_;
    surface.DrawText(caption_, area, style);
}

AccessibleNode Label::Accessible() const {
    AccessibleNode node = Control::Accessible();
    node.role = Role::StaticText;
    if (AccessibleName().empty()) node.name = caption_;
    return node;
}

}  // namespace tavrin::forms
