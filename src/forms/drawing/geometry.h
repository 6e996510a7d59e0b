#pragma once

#include <algorithm>

namespace tavrin::forms {

// Lengths are twips (1/1440 inch) unless a name says pixels.

inline constexpr int TwipsPerInch = 1440;

struct Point {
    int x = 0;
    int y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    int width = 0;
    int height = 0;
    bool operator==(const Size&) const = default;
};

struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    int Right() const { return left + width; }
    int Bottom() const { return top + height; }
    bool IsEmpty() const { return width <= 0 || height <= 0; }
    bool Contains(Point point) const {
        return point.x >= left && point.x < Right() && point.y >= top && point.y < Bottom();
    }
    Rect Inset(int distance) const { return Inset(distance, distance); }
    Rect Inset(int horizontal, int vertical) const {
        return {left + horizontal, top + vertical, std::max(0, width - 2 * horizontal),
                std::max(0, height - 2 * vertical)};
    }
    bool operator==(const Rect&) const = default;
};

/// A place on the screen in physical pixels.
struct PixelPoint {
    int x = 0;
    int y = 0;
    bool operator==(const PixelPoint&) const = default;
};

/// A place in twips where antialiased shapes need fractions.
struct PointF {
    double x = 0;
    double y = 0;
    bool operator==(const PointF&) const = default;
};

}  // namespace tavrin::forms
