#pragma once

#include <windows.h>

#include <cmath>

#include "forms/drawing/geometry.h"

namespace tavrin::win32 {

/// Converts between twips and the pixels of one resolution. Edges are rounded, lengths follow from them, so
/// that neighbours meet.
class Scale {
  public:
    /// \param textPercent how much larger the user wants texts: whole windows are shown so much larger
    explicit Scale(int dpi, int textPercent = 100) : screenDpi_(dpi), textPercent_(textPercent) {}

    int Dpi() const { return Round(ExactDpi()); }
    /// That of the platform's own parts of a window.
    int ScreenDpi() const { return screenDpi_; }
    int TextPercent() const { return textPercent_; }
    double TwipsPerPixel() const { return forms::TwipsPerInch / ExactDpi(); }

    int ToPixels(double twips) const { return Round(twips / TwipsPerPixel()); }
    int ToTwips(int pixels) const { return Round(pixels * TwipsPerPixel()); }

    RECT ToPixels(const forms::Rect& area) const {
        return {ToPixels(area.left), ToPixels(area.top), ToPixels(area.Right()), ToPixels(area.Bottom())};
    }

    bool operator==(const Scale&) const = default;

  private:
    double ExactDpi() const { return screenDpi_ * textPercent_ / 100.0; }
    static int Round(double value) { return static_cast<int>(std::floor(value + 0.5)); }

    int screenDpi_;
    int textPercent_;
};

inline int Width(const RECT& area) {
    return area.right - area.left;
}
inline int Height(const RECT& area) {
    return area.bottom - area.top;
}

}  // namespace tavrin::win32
