#include "support/software_surface.h"

#include <algorithm>
#include <cmath>

#include "data/text/utf8.h"
#include "support/text_metrics.h"

namespace tavrin::tests {

namespace {

using forms::PixelBox;
using forms::Rect;

PixelBox Intersection(const PixelBox& a, const PixelBox& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

int Round(double value) {
    return static_cast<int>(std::floor(value + 0.5));
}

}  // namespace

SoftwareSurface::SoftwareSurface(forms::Size sizeInPixels, double pixelSize, forms::Color background)
    : size_(sizeInPixels),
      pixelSize_(pixelSize),
      pixels_(static_cast<std::size_t>(size_.width) * static_cast<std::size_t>(size_.height), background),
      clips_{{0, 0, size_.width, size_.height}} {}

PixelBox SoftwareSurface::ToPixels(const Rect& area) const {
    return {Round(area.left / pixelSize_), Round(area.top / pixelSize_), Round(area.Right() / pixelSize_),
            Round(area.Bottom() / pixelSize_)};
}

std::vector<forms::PointF> SoftwareSurface::ToPixels(std::span<const forms::PointF> points) const {
    std::vector<forms::PointF> pixels;
    for (const forms::PointF& point : points)
        pixels.push_back({point.x / pixelSize_, point.y / pixelSize_});
    return pixels;
}

void SoftwareSurface::FillRectangle(const Rect& area, forms::Color color) {
    Fill(ToPixels(area), color);
}

void SoftwareSurface::DrawFrame(const Rect& area, forms::Color color, int pixels) {
    const PixelBox box = ToPixels(area);
    Fill({box.left, box.top, box.right, box.top + pixels}, color);
    Fill({box.left, box.bottom - pixels, box.right, box.bottom}, color);
    Fill({box.left, box.top, box.left + pixels, box.bottom}, color);
    Fill({box.right - pixels, box.top, box.right, box.bottom}, color);
}

void SoftwareSurface::Fill(PixelBox box, forms::Color color) {
    box = Intersection(box, clips_.back());
    for (int y = box.top; y < box.bottom; ++y) {
        for (int x = box.left; x < box.right; ++x)
            pixels_[Index(x, y)] = color;
    }
}

void SoftwareSurface::FillPolygon(std::span<const forms::PointF> outline, forms::Color color) {
    Paint(forms::PolygonCoverage(ToPixels(outline), clips_.back()), color);
}

void SoftwareSurface::DrawPolyline(std::span<const forms::PointF> points, double width, forms::Color color) {
    Paint(forms::PolylineCoverage(ToPixels(points), width / pixelSize_, clips_.back()), color);
}

void SoftwareSurface::Paint(const forms::CoverageMask& mask, forms::Color color) {
    const PixelBox& box = mask.Box();
    for (int y = box.top; y < box.bottom; ++y) {
        const auto row = mask.Row(y);
        for (int x = box.left; x < box.right; ++x) {
            forms::Color& pixel = pixels_[Index(x, y)];
            pixel = forms::Blend(pixel, color, row[static_cast<std::size_t>(x - box.left)]);
        }
    }
}

void SoftwareSurface::DrawText(std::string_view text, const Rect& area, const forms::TextStyle& style) {
    const forms::Size size = MeasureText(text, style.font);
    const int room = area.width - size.width;
    const int indent = style.align == forms::Align::Left || room < 0 ? 0
                       : style.align == forms::Align::Right          ? room
                                                                     : room / 2;
    const int count = data::CountCharacters(text);
    const double advance = count > 0 ? static_cast<double>(size.width) / count : 0;
    const int top = area.top + (area.height - size.height) / 2;
    PushClip(area);
    for (int i = 0; i < count; ++i) {
        if (text[data::OffsetOfCharacter(text, i)] == ' ') continue;
        FillRectangle({area.left + indent + static_cast<int>(i * advance), top + size.height / 4,
                       static_cast<int>(advance * 0.75), size.height / 2},
                      style.color);
    }
    PopClip();
}

forms::Size SoftwareSurface::MeasureText(std::string_view text, const forms::Font& font) {
    const double em = font.points * forms::TwipsPerInch / 72;
    return {static_cast<int>(std::ceil(data::CountCharacters(text) * CharacterWidth * em)),
            static_cast<int>(std::ceil(LineHeight * em))};
}

void SoftwareSurface::PushClip(const Rect& area) {
    PixelBox clip = Intersection(ToPixels(area), clips_.back());
    clip.right = std::max(clip.left, clip.right);
    clip.bottom = std::max(clip.top, clip.bottom);
    clips_.push_back(clip);
}

void SoftwareSurface::PopClip() {
    clips_.pop_back();
}

}  // namespace tavrin::tests
