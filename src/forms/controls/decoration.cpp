#include "forms/controls/decoration.h"

#include <algorithm>
#include <vector>

#include "forms/controls/look.h"

namespace tavrin::forms {

namespace {

/// Another surface with its top left corner moved, for controls that are drawn by their container.
class MovedSurface : public Surface {
  public:
    MovedSurface(Surface& target, Point origin) : target_(target), origin_(origin) {}

    double PixelSize() const override { return target_.PixelSize(); }
    void FillRectangle(const Rect& area, Color color) override { target_.FillRectangle(Moved(area), color); }
    using Surface::DrawFrame;
    void DrawFrame(const Rect& area, Color color, int pixels) override {
        target_.DrawFrame(Moved(area), color, pixels);
    }
    void FillPolygon(std::span<const PointF> outline, Color color) override {
        target_.FillPolygon(Moved(outline), color);
    }
    void DrawPolyline(std::span<const PointF> points, double width, Color color) override {
        target_.DrawPolyline(Moved(points), width, color);
    }
    void DrawText(std::string_view text, const Rect& area, const TextStyle& style) override {
        target_.DrawText(text, Moved(area), style);
    }
    Size MeasureText(std::string_view text, const Font& font) override {
        return target_.MeasureText(text, font);
    }
    void PushClip(const Rect& area) override { target_.PushClip(Moved(area)); }
    void PopClip() override { target_.PopClip(); }

  private:
    Rect Moved(const Rect& area) const {
        return {area.left + origin_.x, area.top + origin_.y, area.width, area.height};
    }
    std::vector<PointF> Moved(std::span<const PointF> points) const {
        std::vector<PointF> moved(points.begin(), points.end());
        for (PointF& point : moved) {
            point.x += origin_.x;
            point.y += origin_.y;
        }
        return moved;
    }

    Surface& target_;
    Point origin_;
};

}  // namespace

Shape::Shape(Container& parent, std::string_view name, Rect bounds) : Control(parent, name, bounds) {}

void Shape::Draw(Surface& surface) const {
    const Rect area = look::AreaOf(*this);
    surface.FillRectangle(area, BackColor());
    surface.DrawFrame(area, scheme::Border, look::PixelsOf(surface, look::FocusWidth / 2));
}

Line::Line(Container& parent, std::string_view name, Rect bounds) : Control(parent, name, bounds) {
    SetForeColor(scheme::Border);
}

void Line::Draw(Surface& surface) const {
    const Rect area = look::AreaOf(*this);
    const Rect line = area.width >= area.height
                          ? Rect{0, std::max(0, (area.height - Thickness) / 2), area.width, Thickness}
                          : Rect{std::max(0, (area.width - Thickness) / 2), 0, Thickness, area.height};
    surface.FillRectangle(line, ForeColor());
}

void DrawDecorations(const Container& container, Surface& surface) {
    for (const Control* control : container.Controls()) {
        if (control->Kind() != ControlKind::Decoration || !control->Visible()) continue;
        MovedSurface moved(surface, {control->Bounds().left, control->Bounds().top});
        control->Draw(moved);
    }
}

}  // namespace tavrin::forms
