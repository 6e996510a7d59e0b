#include "forms/drawing/contrast.h"

namespace tavrin::forms {

namespace {

bool IsSelection(Color color) {
    return color == scheme::CurrentRow || color == scheme::CurrentRowDisabled;
}

bool IsFocus(Color color) {
    return color == scheme::Focus || color == scheme::FocusOnPage;
}

/// Lines and marks are drawn as areas too: they are brighter than any ground of a dark window.
bool IsMark(Color color) {
    constexpr Color DarkestMark = 80;
    const Color red = color & 0xFF;
    const Color green = (color >> 8) & 0xFF;
    const Color blue = (color >> 16) & 0xFF;
    return (30 * red + 59 * green + 11 * blue) / 100 >= DarkestMark;
}

}  // namespace

Color InContrast(const ContrastColors& colors, ColorUse use, Color color) {
    if (use == ColorUse::Area) {
        if (IsSelection(color)) return colors.highlight;
        return IsMark(color) ? colors.text : colors.window;
    }
    if (use == ColorUse::SelectedText) return colors.highlightText;
    if (color == scheme::TextDisabled) return colors.disabled;
    return use == ColorUse::Line && IsFocus(color) ? colors.highlight : colors.text;
}

void ContrastSurface::FillRectangle(const Rect& area, Color color) {
    if (IsSelection(color)) highlighted_ = area;
    target_.FillRectangle(area, InContrast(colors_, ColorUse::Area, color));
}

void ContrastSurface::DrawFrame(const Rect& area, Color color, int pixels) {
    target_.DrawFrame(area, InContrast(colors_, ColorUse::Line, color), pixels);
}

// Pictures and the line of a chart are there to be read, whatever their colour.

void ContrastSurface::FillPolygon(std::span<const PointF> outline, Color color) {
    target_.FillPolygon(outline, InContrast(colors_, ColorUse::Text, color));
}

void ContrastSurface::DrawPolyline(std::span<const PointF> points, double width, Color color) {
    target_.DrawPolyline(points, width, InContrast(colors_, ColorUse::Text, color));
}

void ContrastSurface::DrawText(std::string_view text, const Rect& area, const TextStyle& style) {
    TextStyle changed = style;
    const Point middle{area.left + area.width / 2, area.top + area.height / 2};
    const ColorUse use = highlighted_.Contains(middle) ? ColorUse::SelectedText : ColorUse::Text;
    changed.color = InContrast(colors_, use, style.color);
    target_.DrawText(text, area, changed);
}

}  // namespace tavrin::forms
