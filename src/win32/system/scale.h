#pragma once

#include <windows.h>

#include <cmath>

#include "forms/drawing/geometry.h"

namespace tavrin::win32 {

/// Converts between twips and the pixels of one resolution. Edges are rounded, lengths follow from them, so
/// that neighbours meet.
class Scale {
  public:
    explicit Scale(int dpi) : dpi_(dpi) {}

    int Dpi() const { return dpi_; }
    double TwipsPerPixel() const { return static_cast<double>(forms::TwipsPerInch) / dpi_; }

    int ToPixels(double twips) const { return Round(twips / TwipsPerPixel()); }
    int ToTwips(int pixels) const { return Round(pixels * TwipsPerPixel()); }

    RECT ToPixels(const forms::Rect& area) const {
        return {ToPixels(area.left), ToPixels(area.top), ToPixels(area.Right()), ToPixels(area.Bottom())};
    }

    bool operator==(const Scale&) const = default;

  private:
    static int Round(double value) { return static_cast<int>(std::floor(value + 0.5)); }

    int dpi_;
};

inline int Width(const RECT& area) {
    return area.right - area.left;
}
inline int Height(const RECT& area) {
    return area.bottom - area.top;
}

}  // namespace tavrin::win32
