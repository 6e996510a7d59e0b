#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "forms/drawing/geometry.h"

namespace tavrin::forms {

/// A box of whole device pixels; right and bottom are exclusive.
struct PixelBox {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    bool IsEmpty() const { return right <= left || bottom <= top; }
    bool operator==(const PixelBox&) const = default;
};

/// How much of each pixel of a box a shape covers: 0 none of it, 255 all of it.
class CoverageMask {
  public:
    explicit CoverageMask(PixelBox box);

    const PixelBox& Box() const { return box_; }
    /// The pixels of row y from Box().left on. \pre y lies in the box
    std::span<const std::uint8_t> Row(int y) const;
    std::span<std::uint8_t> Row(int y);

  private:
    PixelBox box_;
    std::vector<std::uint8_t> coverage_;
};

// Points are in device pixels; a pixel (x, y) is the square from (x, y) to (x + 1, y + 1). Points that are no
// finite numbers give an empty mask.

/// A closed outline filled by the even-odd rule, within `clip`.
CoverageMask PolygonCoverage(std::span<const PointF> outline, const PixelBox& clip);

/// An open line `width` pixels thick with round joins and ends, within `clip`. Lines thinner than a pixel are
/// drawn one pixel thick and paler. A single point gives a dot.
CoverageMask PolylineCoverage(std::span<const PointF> points, double width, const PixelBox& clip);

/// `over` painted upon `under` with a coverage; any order of the three colour bytes.
std::uint32_t Blend(std::uint32_t under, std::uint32_t over, std::uint8_t coverage);

}  // namespace tavrin::forms
