#pragma once

#include "forms/drawing/surface.h"

#undef DrawText  // whichever header came first

namespace tavrin::forms {

/// The colours of a user who needs contrast: what the scheme gives way to. Each pair stands out by itself.
struct ContrastColors {
    Color window;
    Color text;
    Color disabled;  ///< text of what takes no input
    Color highlight;
    Color highlightText;
};

/// What a colour is used for.
enum class ColorUse {
    Area,
    Line,  ///< frames and edges
    Text,  ///< and pictures, and what else is there to be read
    SelectedText,
};

/// The colour in the place of one of a window's own.
Color InContrast(const ContrastColors& colors, ColorUse use, Color color);

/// Another surface on which everything is drawn in these colours, texts on highlighted areas in theirs.
class ContrastSurface final : public Surface {
  public:
    ContrastSurface(Surface& target, const ContrastColors& colors) : target_(target), colors_(colors) {}

    double PixelSize() const override { return target_.PixelSize(); }
    void FillRectangle(const Rect& area, Color color) override;
    using Surface::DrawFrame;
    void DrawFrame(const Rect& area, Color color, int pixels) override;
    void FillPolygon(std::span<const PointF> outline, Color color) override;
    void DrawPolyline(std::span<const PointF> points, double width, Color color) override;
    void DrawText(std::string_view text, const Rect& area, const TextStyle& style) override;
    Size MeasureText(std::string_view text, const Font& font) override {
        return target_.MeasureText(text, font);
    }
    void PushClip(const Rect& area) override { target_.PushClip(area); }
    void PopClip() override { target_.PopClip(); }

  private:
    Surface& target_;
    ContrastColors colors_;
    Rect highlighted_;  ///< the area that was highlighted last
};

}  // namespace tavrin::forms
