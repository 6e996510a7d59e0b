#include "forms/label.h"

#include <utility>

#include "forms/look.h"

namespace tavrin::forms {

Label::Label(Container& parent, std::string name, std::string caption, Rect bounds)
    : Control(parent, std::move(name), bounds), caption_(std::move(caption)) {}

void Label::SetCaption(std::string caption) {
    if (caption_ == caption) return;
    caption_ = std::move(caption);
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
