#pragma once

#include <string>
#include <vector>

#include "forms/drawing/surface.h"

namespace tavrin::tests {

enum class Drawing { Rectangle, Frame, Polygon, Polyline, Text };

/// One thing that was drawn. `area` is what it may have touched, in twips, clipped; for a text the rectangle
/// that it was set into, before clipping.
struct Drawn {
    Drawing kind = Drawing::Rectangle;
    forms::Rect area;
    forms::Color color = 0;
    int pixels = 0;  ///< the thickness of a frame
    std::string text;
    forms::TextStyle style;
    forms::Rect clip;
};

/// Remembers what was drawn. Every character is 0.55 em wide (0.6 when bold) and a line 1.2 em high, so that
/// a measure depends on nothing but the text and the font.
class RecordingSurface : public forms::Surface {
  public:
    explicit RecordingSurface(double pixelSize = 15) : pixelSize_(pixelSize) {}

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

    const std::vector<Drawn>& All() const { return drawn_; }
    std::vector<Drawn> AllOf(Drawing kind) const;
    /// The texts in the order of their drawing.
    std::vector<std::string> Texts() const;
    /// The first text of that wording, null where there is none.
    const Drawn* FindText(std::string_view text) const;
    /// Whether a frame of that colour was drawn exactly around an area.
    bool HasFrame(const forms::Rect& area, forms::Color color) const;
    /// Whether a rectangle of that colour was filled over the whole of an area.
    bool IsFilled(const forms::Rect& area, forms::Color color) const;
    bool ClipsAreBalanced() const { return clips_.empty(); }

    /// What was drawn, at least in part, outside an area; told in words for a test's report.
    std::vector<std::string> Outside(const forms::Rect& area) const;
    /// The texts that do not fit into the rectangles they were set into.
    std::vector<std::string> CutTexts();

  private:
    forms::Rect Clipped(const forms::Rect& area) const;
    void Add(Drawing kind, const forms::Rect& area, forms::Color color);

    double pixelSize_;
    std::vector<forms::Rect> clips_;
    std::vector<Drawn> drawn_;
};

}  // namespace tavrin::tests
