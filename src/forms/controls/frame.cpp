#include "forms/controls/frame.h"

#include "forms/controls/decoration.h"
#include "forms/controls/look.h"

namespace tavrin::forms {

Frame::Frame(Container& parent, std::string_view name, Rect bounds) : Control(parent, name, bounds) {}

void Frame::SetBordered(bool bordered) {
    if (bordered_ == bordered) return;
    bordered_ = bordered;
    Repaint();
}

void Frame::Draw(Surface& surface) const {
    const Rect area = look::AreaOf(*this);
    surface.FillRectangle(area, BackColor());
    if (bordered_) surface.DrawFrame(area, scheme::GridLine, look::PixelsOf(surface, look::FocusWidth / 2));
    DrawDecorations(*this, surface);
}

AccessibleNode Frame::Accessible() const {
    AccessibleNode node = Control::Accessible();
    node.role = Role::Grouping;
    return node;
}

}  // namespace tavrin::forms
