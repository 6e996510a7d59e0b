#include "forms/controls/picture_box.h"

#include <algorithm>
#include <utility>

#include "forms/controls/look.h"

namespace tavrin::forms {

PictureBox::PictureBox(Container& parent, std::string_view name, Rect bounds)
    : Control(parent, name, bounds) {}

void PictureBox::Paint(Color backColor, Color foreColor) {
    printed_.clear();
    SetBackColor(backColor);
    SetForeColor(foreColor);
    Repaint();
}

void PictureBox::PrintAt(Point at, std::string text) {
    printed_.push_back({at, std::move(text)});
    Repaint();
}

void PictureBox::Draw(Surface& surface) const {
    const Rect area = look::AreaOf(*this);
    surface.FillRectangle(area, BackColor());
    const ClipScope clip(surface, area);
    for (const auto& [at, text] : printed_) {
        const int height = surface.MeasureText(text, TextFont()).height;
        const Rect place{at.x, at.y, std::max(0, area.width - at.x),
                         std::min(height, std::max(0, area.height - at.y))};
        surface.DrawText(text, place, look::TextStyleOf(*this));
    }
}

AccessibleNode PictureBox::Accessible() const {
    AccessibleNode node = Control::Accessible();
    node.role = Role::Graphic;
    if (AccessibleName().empty() && !printed_.empty()) node.name = printed_.back().text;
    return node;
}

}  // namespace tavrin::forms
