#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/drawing/rasterizer.h"
#include "forms/drawing/surface.h"

namespace tavrin::tests {

/// Draws into a picture in memory, without a platform. Texts are shown as a bar in each character's place:
/// enough to see where they stand.
class SoftwareSurface : public forms::Surface {
  public:
    SoftwareSurface(forms::Size sizeInPixels, double pixelSize, forms::Color background);

    double PixelSize() const override { return pixelSize_; }
    void FillRectangle(const forms::Rect& area, forms::Color color) override;
    using Surface::DrawFrame;
    void DrawFrame(const forms::Rect& area, forms::Color color, int pixels) override;
    void FillPolygon(std::span<const forms::PointF> outline, forms::Color color) override;
    void DrawPolyline(std::span<const forms::PointF> points, double width, forms::Color color) override;
    void DrawText(std::string_view text, const forms::Rect& area, const forms::TextStyle& style) override;
    forms::Size MeasureText(std::string_view text, const forms::Font& font) override;
    void PushClip(const forms::Rect& area) override;
    void PopClip() override;

    forms::Color Pixel(int x, int y) const { return pixels_[Index(x, y)]; }

  private:
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(size_.width) +
               static_cast<std::size_t>(x);
    }
    forms::PixelBox ToPixels(const forms::Rect& area) const;
    std::vector<forms::PointF> ToPixels(std::span<const forms::PointF> points) const;
    void Fill(forms::PixelBox box, forms::Color color);
    void Paint(const forms::CoverageMask& mask, forms::Color color);

    forms::Size size_;
    double pixelSize_;
    std::vector<forms::Color> pixels_;
    std::vector<forms::PixelBox> clips_;
};

}  // namespace tavrin::tests
