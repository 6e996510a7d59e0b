#include "forms/controls/look.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "forms/controls/text_box.h"

namespace tavrin::forms::look {

namespace {

constexpr int OutsideClip = 600;  ///< twips; sides of a frame that lie this far outside the clip are not seen

void DrawClipped(Surface& surface, const Rect& area, const Rect& frame, Color color) {
    const ClipScope clip(surface, area);
    surface.DrawFrame(frame, color, 1);
}

}  // namespace

Rect AreaOf(const Control& control) {
    return {0, 0, control.Bounds().width, control.Bounds().height};
}

int PixelsOf(const Surface& surface, int twips) {
    return std::max(1, static_cast<int>(std::lround(twips / surface.PixelSize())));
}

TextStyle TextStyleOf(const Control& control) {
    TextStyle style;
    style.font = control.TextFont();
    style.color = control.IsEffectivelyEnabled() ? control.ForeColor() : scheme::TextDisabled;
    return style;
}

Edge EdgeOf(const Control& control, bool hasFocus) {
    if (hasFocus) return {scheme::Focus, FocusWidth, false};
    const auto* field = dynamic_cast<const TextBox*>(&control);
    return {control.IsEffectivelyEnabled() ? scheme::Border : scheme::GridLine, FocusWidth / 2,
            field != nullptr && field->Locked()};
}

void DrawBorder(Surface& surface, const Control& control) {
    const Edge edge = EdgeOf(control, control.HasFocus());
    surface.DrawFrame(AreaOf(control), edge.color, PixelsOf(surface, edge.width));
}

void DrawField(Surface& surface, const Control& control) {
    surface.FillRectangle(AreaOf(control), control.BackColor());
    DrawBorder(surface, control);
}

void DrawDropArrow(Surface& surface, const Control& control) {
    const Rect area = AreaOf(control);
    const double half = 52;
    const double x = area.Right() - FocusWidth - ArrowWidth / 2.0;
    const double y = area.height / 2.0;
    const std::array<PointF, 3> arrow{
        {{x - half, y - half / 2}, {x, y + half / 2}, {x + half, y - half / 2}}};
    surface.DrawPolyline(arrow, 24, control.IsEffectivelyEnabled() ? scheme::Text : scheme::TextDisabled);
}

// A frame whose other three sides lie outside the clip: its thickness is exact at every resolution.

void DrawRightEdge(Surface& surface, const Rect& area, Color color) {
    DrawClipped(surface, area,
                {area.left - OutsideClip, area.top - OutsideClip, area.width + OutsideClip,
                 area.height + 2 * OutsideClip},
                color);
}

void DrawBottomEdge(Surface& surface, const Rect& area, Color color) {
    DrawClipped(surface, area,
                {area.left - OutsideClip, area.top - OutsideClip, area.width + 2 * OutsideClip,
                 area.height + OutsideClip},
                color);
}

}  // namespace tavrin::forms::look
