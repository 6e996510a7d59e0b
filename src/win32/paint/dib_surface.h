#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "forms/drawing/rasterizer.h"
#include "forms/drawing/surface.h"
#include "win32/base/handles.h"
#include "win32/paint/dib_canvas.h"
#include "win32/paint/font_cache.h"
#include "win32/system/scale.h"

#undef DrawText  // whichever header came first

namespace tavrin::win32 {

/// Draws on the canvas: areas and shapes straight into its memory, texts by GDI.
class DibSurface : public forms::Surface {
  public:
    /// `origin` is where the surface's top left corner lies in its parent, in twips: it decides how edges are
    /// rounded, so that what a control draws ends exactly where its window does. Nothing outside `dirty`
    /// (pixels) is touched.
    DibSurface(DibCanvas& canvas, FontCache& fonts, Scale scale, forms::Point origin, const RECT& dirty);
    ~DibSurface() override;

    double PixelSize() const override { return scale_.TwipsPerPixel(); }
    void FillRectangle(const forms::Rect& area, forms::Color color) override;
    using Surface::DrawFrame;
    void DrawFrame(const forms::Rect& area, forms::Color color, int pixels) override;
    void FillPolygon(std::span<const forms::PointF> outline, forms::Color color) override;
    void DrawPolyline(std::span<const forms::PointF> points, double width, forms::Color color) override;
    void DrawText(std::string_view text, const forms::Rect& area, const forms::TextStyle& style) override;
    forms::Size MeasureText(std::string_view text, const forms::Font& font) override;
    void PushClip(const forms::Rect& area) override;
    void PopClip() override;

  private:
    RECT ToPixels(const forms::Rect& area) const;
    std::vector<forms::PointF> ToPixels(std::span<const forms::PointF> points) const;
    void FillPixels(RECT area, forms::Color color);
    forms::PixelBox ClipBox() const;
    void Paint(const forms::CoverageMask& mask, forms::Color color);
    void ApplyClip();
    /// Before memory is touched that GDI may still be about to draw in.
    void Flush();

    DibCanvas& canvas_;
    FontCache& fonts_;
    Scale scale_;
    forms::Point origin_;
    POINT originPixels_;
    std::vector<RECT> clips_;
    bool textPending_ = false;
};

}  // namespace tavrin::win32
