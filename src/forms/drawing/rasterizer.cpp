#include "forms/drawing/rasterizer.h"

#include <algorithm>
#include <cmath>

namespace tavrin::forms {

namespace {

constexpr int LinesPerPixel = 8;  // polygons are sampled on that many lines in each row of pixels
constexpr double Half = 0.5;      // added before a fraction is cut off
constexpr double LineWeight = 255.0 / LinesPerPixel;

bool AllFinite(std::span<const PointF> points) {
    return std::ranges::all_of(points,
                               [](const PointF& p) { return std::isfinite(p.x) && std::isfinite(p.y); });
}

/// The whole pixels around some points and a margin, within a clip.
PixelBox BoxAround(std::span<const PointF> points, double margin, const PixelBox& clip) {
    if (points.empty() || !AllFinite(points)) return {};
    const auto [west, east] = std::ranges::minmax(points, {}, &PointF::x);
    const auto [north, south] = std::ranges::minmax(points, {}, &PointF::y);
    const auto within = [](double value, int low, int high) {
        return static_cast<int>(std::clamp(value, static_cast<double>(low), static_cast<double>(high)));
    };
    return {within(std::floor(west.x - margin), clip.left, clip.right),
            within(std::floor(north.y - margin), clip.top, clip.bottom),
            within(std::ceil(east.x + margin), clip.left, clip.right),
            within(std::ceil(south.y + margin), clip.top, clip.bottom)};
}

/// Where the outline crosses a horizontal line, from left to right.
void FindCrossings(std::span<const PointF> outline, double y, std::vector<double>& crossings) {
    crossings.clear();
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const PointF& a = outline[i];
        const PointF& b = outline[(i + 1) % outline.size()];
        if ((a.y <= y) == (b.y <= y)) continue;
        crossings.push_back(a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x));
    }
    std::ranges::sort(crossings);
}

/// Adds a run from `from` to `to` (pixels from the row's left end), its broken ends by their share.
void AddRun(std::span<double> row, double from, double to) {
    const auto width = static_cast<double>(row.size());
    from = std::clamp(from, 0.0, width);
    to = std::clamp(to, 0.0, width);
    if (to <= from) return;
    const auto first = static_cast<std::size_t>(from);
    const auto last = std::min(static_cast<std::size_t>(to), row.size() - 1);
    if (first == last) {
        row[first] += to - from;
        return;
    }
    row[first] += static_cast<double>(first + 1) - from;
    for (std::size_t x = first + 1; x < last; ++x)
        row[x] += 1;
    row[last] += to - static_cast<double>(last);
}

std::uint8_t ToCoverage(double value) {
    return static_cast<std::uint8_t>(std::clamp(std::lround(value), 0L, 255L));
}

/// One stretch of a line: everything within `radius` of the segment from a to b. Along a row of pixels the
/// distance from the segment's line, and the place along it, grow evenly.
class Stroke {
  public:
    Stroke(const PointF& a, const PointF& b, double radius)
        : a_(a),
          width_(b.x - a.x),
          height_(b.y - a.y),
          length_(std::sqrt(width_ * width_ + height_ * height_)),
          reach_(radius + 0.5) {
        if (length_ > 0) along_ = {width_ / length_, height_ / length_};
        if (std::abs(height_) > 1e-9) slope_ = width_ / height_;
    }

    void AddTo(CoverageMask& mask, double strength) const {
        const PixelBox& box = mask.Box();
        const double top = std::min(a_.y, a_.y + height_) - reach_;
        const double bottom = std::max(a_.y, a_.y + height_) + reach_;
        const int rows = box.Height();
        const int lastRow = WholeWithin(bottom - box.top, rows - 1);
        for (int row = WholeWithin(top - box.top, rows); row <= lastRow; ++row)
            AddRow(mask, box.top + row, 255 * strength);
    }

  private:
    /// Rounded down and kept from 0 to a limit.
    static int WholeWithin(double value, int limit) {
        return static_cast<int>(std::clamp(value, 0.0, static_cast<double>(limit)));
    }

    void AddRow(CoverageMask& mask, int y, double full) const {
        const PixelBox& box = mask.Box();
        const auto [west, east] = Extent(y + 0.5);
        const int first = WholeWithin(west - box.left, box.Width());
        const int last = WholeWithin(east - box.left, box.Width() - 1);
        const auto row = mask.Row(y);
        const PointF start{box.left + first + 0.5 - a_.x, y + 0.5 - a_.y};
        double place = start.x * along_.x + start.y * along_.y;
        double distance = start.y * along_.x - start.x * along_.y;
        for (int x = first; x <= last; ++x) {
            const double beyond = place < 0 ? place : place > length_ ? place - length_ : 0;
            const double from =
                beyond == 0 ? std::abs(distance) : std::sqrt(distance * distance + beyond * beyond);
            const double cover = std::clamp(reach_ - from, 0.0, 1.0) * full;
            std::uint8_t& pixel = row[static_cast<std::size_t>(x)];
            // NOLINTNEXTLINE(bugprone-incorrect-roundings): never negative, and lround would cost a call a
            // pixel
            pixel = std::max(pixel, static_cast<std::uint8_t>(cover + Half));
            place += along_.x;
            distance -= along_.y;
        }
    }

    struct Range {
        double west;
        double east;
    };

    /// The stretch of the row that the stroke can reach.
    Range Extent(double y) const {
        double from = 0;
        double to = width_;
        if (slope_ != 0) {
            from = WithinWidth((y - reach_ - a_.y) * slope_);
            to = WithinWidth((y + reach_ - a_.y) * slope_);
        }
        return {a_.x + std::min(from, to) - reach_, a_.x + std::max(from, to) + reach_};
    }

    double WithinWidth(double x) const { return std::clamp(x, std::min(0.0, width_), std::max(0.0, width_)); }

    PointF a_;
    double width_;
    double height_;
    double length_;
    double slope_ = 0;  ///< how far x goes while y goes 1; 0 for upright and level strokes
    PointF along_{1, 0};
    double reach_;
};

}  // namespace

CoverageMask::CoverageMask(PixelBox box) : box_(box.IsEmpty() ? PixelBox{} : box) {
    coverage_.resize(static_cast<std::size_t>(box_.Width()) * static_cast<std::size_t>(box_.Height()));
}

std::span<const std::uint8_t> CoverageMask::Row(int y) const {
    const auto width = static_cast<std::size_t>(box_.Width());
    return std::span(coverage_).subspan(static_cast<std::size_t>(y - box_.top) * width, width);
}

std::span<std::uint8_t> CoverageMask::Row(int y) {
    const auto width = static_cast<std::size_t>(box_.Width());
    return std::span(coverage_).subspan(static_cast<std::size_t>(y - box_.top) * width, width);
}

CoverageMask PolygonCoverage(std::span<const PointF> outline, const PixelBox& clip) {
    CoverageMask mask(BoxAround(outline, 0, clip));
    const PixelBox box = mask.Box();
    std::vector<double> sums(static_cast<std::size_t>(box.Width()));
    std::vector<double> crossings;
    for (int y = box.top; y < box.bottom; ++y) {
        std::ranges::fill(sums, 0.0);
        for (int line = 0; line < LinesPerPixel; ++line) {
            FindCrossings(outline, y + (line + 0.5) / LinesPerPixel, crossings);
            for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
                AddRun(sums, crossings[i] - box.left, crossings[i + 1] - box.left);
            }
        }
        std::ranges::transform(sums, mask.Row(y).begin(),
                               [](double sum) { return ToCoverage(sum * LineWeight); });
    }
    return mask;
}

CoverageMask PolylineCoverage(std::span<const PointF> points, double width, const PixelBox& clip) {
    const double radius = std::max(1.0, width) / 2;
    CoverageMask mask(BoxAround(points, radius + 1, clip));
    if (mask.Box().IsEmpty() || !(width > 0)) return mask;
    const double strength = std::min(1.0, width);
    if (points.size() == 1) Stroke(points[0], points[0], radius).AddTo(mask, strength);
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        Stroke(points[i], points[i + 1], radius).AddTo(mask, strength);
    }
    return mask;
}

std::uint32_t Blend(std::uint32_t under, std::uint32_t over, std::uint8_t coverage) {
    std::uint32_t blended = 0;
    for (const int shift : {0, 8, 16}) {
        const std::uint32_t from = under >> shift & 0xFF;
        const std::uint32_t to = over >> shift & 0xFF;
        blended |= (from * (255U - coverage) + to * coverage + 127) / 255 << shift;
    }
    return blended;
}

}  // namespace tavrin::forms
