#include "support/recording_surface.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "data/text/utf8.h"
#include "support/text_metrics.h"

namespace tavrin::tests {

namespace {

using forms::PointF;
using forms::Rect;

constexpr int Far = 1 << 28;

Rect Intersection(const Rect& a, const Rect& b) {
    const int left = std::max(a.left, b.left);
    const int top = std::max(a.top, b.top);
    const Rect common{left, top, std::min(a.Right(), b.Right()) - left,
                      std::min(a.Bottom(), b.Bottom()) - top};
    return common.IsEmpty() ? Rect{} : common;
}

bool Covers(const Rect& outer, const Rect& inner) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.Right() <= outer.Right() &&
           inner.Bottom() <= outer.Bottom();
}

Rect Around(std::span<const PointF> points, double margin) {
    if (points.empty()) return {};
    const auto [west, east] = std::ranges::minmax(points, {}, &PointF::x);
    const auto [north, south] = std::ranges::minmax(points, {}, &PointF::y);
    const int left = static_cast<int>(std::floor(west.x - margin));
    const int top = static_cast<int>(std::floor(north.y - margin));
    return {left, top, static_cast<int>(std::ceil(east.x + margin)) - left,
            static_cast<int>(std::ceil(south.y + margin)) - top};
}

std::string Describe(const Drawn& drawn) {
    static constexpr const char* names[] = {"rectangle", "frame", "polygon", "polyline", "text"};
    const Rect& area = drawn.area;
    std::string words = names[static_cast<int>(drawn.kind)];
    if (!drawn.text.empty()) words += " \"" + drawn.text + "\"";
    words += " at " + std::to_string(area.left) + ", " + std::to_string(area.top);
    return words + ", " + std::to_string(area.width) + " by " + std::to_string(area.height);
}

}  // namespace

void RecordingSurface::FillRectangle(const Rect& area, forms::Color color) {
    Add(Drawing::Rectangle, Clipped(area), color);
}

void RecordingSurface::DrawFrame(const Rect& area, forms::Color color, int pixels) {
    Add(Drawing::Frame, Clipped(area), color);
    drawn_.back().pixels = pixels;
}

void RecordingSurface::FillPolygon(std::span<const PointF> outline, forms::Color color) {
    Add(Drawing::Polygon, Clipped(Around(outline, 0)), color);
}

void RecordingSurface::DrawPolyline(std::span<const PointF> points, double width, forms::Color color) {
    Add(Drawing::Polyline, Clipped(Around(points, width / 2)), color);
}

void RecordingSurface::DrawText(std::string_view text, const Rect& area, const forms::TextStyle& style) {
    if (text.empty()) return;
    Add(Drawing::Text, area, style.color);
    drawn_.back().text = text;
    drawn_.back().style = style;
}

forms::Size RecordingSurface::MeasureText(std::string_view text, const forms::Font& font) {
    const double em = font.points * forms::TwipsPerInch / 72;
    const double character = font.bold ? BoldCharacterWidth : CharacterWidth;
    return {static_cast<int>(std::ceil(data::CountCharacters(text) * character * em)),
            static_cast<int>(std::ceil(LineHeight * em))};
}

void RecordingSurface::PushClip(const Rect& area) {
    clips_.push_back(Clipped(area));
}

void RecordingSurface::PopClip() {
    clips_.pop_back();
}

Rect RecordingSurface::Clipped(const Rect& area) const {
    return clips_.empty() ? area : Intersection(area, clips_.back());
}

void RecordingSurface::Add(Drawing kind, const Rect& area, forms::Color color) {
    Drawn drawn;
    drawn.kind = kind;
    drawn.area = area;
    drawn.color = color;
    drawn.clip = clips_.empty() ? Rect{-Far, -Far, 2 * Far, 2 * Far} : clips_.back();
    drawn_.push_back(std::move(drawn));
}

std::vector<Drawn> RecordingSurface::AllOf(Drawing kind) const {
    std::vector<Drawn> found;
    std::ranges::copy_if(drawn_, std::back_inserter(found),
                         [kind](const Drawn& each) { return each.kind == kind; });
    return found;
}

std::vector<std::string> RecordingSurface::Texts() const {
    std::vector<std::string> texts;
    for (const Drawn& each : AllOf(Drawing::Text))
        texts.push_back(each.text);
    return texts;
}

const Drawn* RecordingSurface::FindText(std::string_view text) const {
    const auto found = std::ranges::find_if(
        drawn_, [text](const Drawn& each) { return each.kind == Drawing::Text && each.text == text; });
    return found == drawn_.end() ? nullptr : &*found;
}

bool RecordingSurface::HasFrame(const Rect& area, forms::Color color) const {
    return std::ranges::any_of(drawn_, [&](const Drawn& each) {
        return each.kind == Drawing::Frame && each.area == area && each.color == color;
    });
}

bool RecordingSurface::IsFilled(const Rect& area, forms::Color color) const {
    return std::ranges::any_of(drawn_, [&](const Drawn& each) {
        return each.kind == Drawing::Rectangle && each.color == color && Covers(each.area, area);
    });
}

std::vector<std::string> RecordingSurface::Outside(const Rect& area) const {
    std::vector<std::string> outside;
    for (const Drawn& each : drawn_) {
        const Rect touched = Intersection(each.area, each.clip);
        if (!touched.IsEmpty() && !Covers(area, touched)) outside.push_back(Describe(each));
    }
    return outside;
}

std::vector<std::string> RecordingSurface::CutTexts() {
    std::vector<std::string> cut;
    for (const Drawn& each : AllOf(Drawing::Text)) {
        const forms::Size needed = MeasureText(each.text, each.style.font);
        const Rect visible = Intersection(each.area, each.clip);
        const bool fitsAcross = each.style.wrap || needed.width <= visible.width;
        if (!fitsAcross || needed.height > visible.height) cut.push_back(Describe(each));
    }
    return cut;
}

}  // namespace tavrin::tests
