#include "win32/paint/dib_surface.h"

#include <algorithm>
#include <cmath>

#include "win32/base/text.h"

namespace tavrin::win32 {

namespace {

/// The canvas stores red and blue the other way round.
std::uint32_t ToPixel(forms::Color color) {
    return ((color & 0xFF) << 16) | (color & 0xFF00) | ((color >> 16) & 0xFF);
}

RECT Intersect(const RECT& left, const RECT& right) {
    RECT common{};
    IntersectRect(&common, &left, &right);
    return common;
}

/// The text as DrawTextW wants it: ampersands doubled, one put before the character to underline.
std::wstring WithPrefix(std::string_view text, int accelerator) {
    std::string marked;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (accelerator >= 0 && i == static_cast<std::size_t>(accelerator)) marked += '&';
        if (text[i] == '&') marked += '&';
        marked += text[i];
    }
    return ToWide(marked);
}

UINT FormatOf(const forms::TextStyle& style) {
    UINT format = style.wrap ? DT_WORDBREAK | DT_EDITCONTROL : DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS;
    if (style.align == forms::Align::Center) format |= DT_CENTER;
    if (style.align == forms::Align::Right) format |= DT_RIGHT;
    return format;
}

}  // namespace

DibSurface::DibSurface(DibCanvas& canvas, FontCache& fonts, Scale scale, forms::Point origin,
                       const RECT& dirty)
    : canvas_(canvas),
      fonts_(fonts),
      scale_(scale),
      origin_(origin),
      originPixels_{scale.ToPixels(origin.x), scale.ToPixels(origin.y)},
      clips_{dirty} {
    SetBkMode(canvas_.Dc(), TRANSPARENT);
    ApplyClip();
}

DibSurface::~DibSurface() {
    SelectClipRgn(canvas_.Dc(), nullptr);
}

RECT DibSurface::ToPixels(const forms::Rect& area) const {
    RECT pixels =
        scale_.ToPixels(forms::Rect{area.left + origin_.x, area.top + origin_.y, area.width, area.height});
    OffsetRect(&pixels, -originPixels_.x, -originPixels_.y);
    return pixels;
}

std::vector<forms::PointF> DibSurface::ToPixels(std::span<const forms::PointF> points) const {
    std::vector<forms::PointF> pixels;
    pixels.reserve(points.size());
    for (const forms::PointF& point : points)
        pixels.push_back({point.x / PixelSize(), point.y / PixelSize()});
    return pixels;
}

void DibSurface::FillRectangle(const forms::Rect& area, forms::Color color) {
    FillPixels(ToPixels(area), color);
}

void DibSurface::FillPixels(RECT area, forms::Color color) {
    Flush();
    area = Intersect(area, clips_.back());
    const std::uint32_t pixel = ToPixel(color);
    for (int y = area.top; y < area.bottom; ++y) {
        const auto row = canvas_.Row(y);
        std::fill(row.begin() + area.left, row.begin() + area.right, pixel);
    }
}

void DibSurface::DrawFrame(const forms::Rect& area, forms::Color color, int pixels) {
    const RECT outer = ToPixels(area);
    const int across = std::min(pixels, Width(outer));
    const int down = std::min(pixels, Height(outer));
    FillPixels({outer.left, outer.top, outer.right, outer.top + down}, color);
    FillPixels({outer.left, outer.bottom - down, outer.right, outer.bottom}, color);
    FillPixels({outer.left, outer.top, outer.left + across, outer.bottom}, color);
    FillPixels({outer.right - across, outer.top, outer.right, outer.bottom}, color);
}

void DibSurface::FillPolygon(std::span<const forms::PointF> outline, forms::Color color) {
    Paint(forms::PolygonCoverage(ToPixels(outline), ClipBox()), color);
}

void DibSurface::DrawPolyline(std::span<const forms::PointF> points, double width, forms::Color color) {
    Paint(forms::PolylineCoverage(ToPixels(points), width / PixelSize(), ClipBox()), color);
}

forms::PixelBox DibSurface::ClipBox() const {
    const RECT& clip = clips_.back();
    return {clip.left, clip.top, clip.right, clip.bottom};
}

void DibSurface::Paint(const forms::CoverageMask& mask, forms::Color color) {
    Flush();
    const std::uint32_t pixel = ToPixel(color);
    const forms::PixelBox& box = mask.Box();
    for (int y = box.top; y < box.bottom; ++y) {
        const auto coverage = mask.Row(y);
        const auto row = canvas_.Row(y).subspan(static_cast<std::size_t>(box.left), coverage.size());
        for (std::size_t x = 0; x < coverage.size(); ++x) {
            if (coverage[x] != 0) row[x] = forms::Blend(row[x], pixel, coverage[x]);
        }
    }
}

void DibSurface::DrawText(std::string_view text, const forms::Rect& area, const forms::TextStyle& style) {
    if (text.empty()) return;
    const HDC dc = canvas_.Dc();
    const SelectScope font(dc, fonts_.Find(style.font, scale_.Dpi()));
    const std::wstring wide = WithPrefix(text, style.accelerator);
    const auto length = static_cast<int>(wide.size());
    const UINT format = FormatOf(style);
    RECT place = ToPixels(area);
    if (style.wrap) {
        RECT needed = place;
        const int height = ::DrawTextW(dc, wide.c_str(), length, &needed, format | DT_CALCRECT);
        place.top += std::max(0, (Height(place) - height) / 2);
    }
    SetTextColor(dc, style.color);
    ::DrawTextW(dc, wide.c_str(), length, &place, format);
    textPending_ = true;
}

forms::Size DibSurface::MeasureText(std::string_view text, const forms::Font& font) {
    const HDC dc = canvas_.Dc();
    const SelectScope selected(dc, fonts_.Find(font, scale_.Dpi()));
    const std::wstring wide = ToWide(text);
    SIZE size{};
    GetTextExtentPoint32W(dc, wide.c_str(), static_cast<int>(wide.size()), &size);
    const double pixel = PixelSize();
    return {static_cast<int>(std::ceil(size.cx * pixel)), static_cast<int>(std::ceil(size.cy * pixel))};
}

void DibSurface::PushClip(const forms::Rect& area) {
    clips_.push_back(Intersect(ToPixels(area), clips_.back()));
    ApplyClip();
}

void DibSurface::PopClip() {
    clips_.pop_back();
    ApplyClip();
}

void DibSurface::ApplyClip() {
    const RECT& clip = clips_.back();
    const OwnedRegion region(CreateRectRgnIndirect(&clip));
    SelectClipRgn(canvas_.Dc(), region.get());
}

void DibSurface::Flush() {
    if (!textPending_) return;
    GdiFlush();
    textPending_ = false;
}

}  // namespace tavrin::win32
