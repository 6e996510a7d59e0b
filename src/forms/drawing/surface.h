#pragma once

#include <span>
#include <string_view>

#include "forms/drawing/color.h"
#include "forms/drawing/font.h"
#include "forms/drawing/geometry.h"

#undef DrawText  // a macro of the platform's headers

namespace tavrin::forms {

enum class Align { Left, Center, Right };

/// How a text is set into a rectangle: vertically centred, on one line unless `wrap`, cut with an ellipsis
/// where it does not fit. `accelerator` is the index of the byte to underline, -1 for none.
struct TextStyle {
    Font font;
    Color color = scheme::Text;
    Align align = Align::Left;
    bool wrap = false;
    int accelerator = -1;
};

/// What controls draw themselves on. Places and lengths are twips from the control's top left corner; edges
/// of rectangles fall on whole device pixels, so that neighbours meet without a gap at every resolution.
class Surface {
  public:
    virtual ~Surface() = default;

    /// Twips per device pixel: 15 at 96 DPI, 7.5 at 192.
    virtual double PixelSize() const = 0;

    virtual void FillRectangle(const Rect& area, Color color) = 0;

    /// A frame just inside `area`, `pixels` device pixels thick.
    virtual void DrawFrame(const Rect& area, Color color, int pixels) = 0;

    /// Antialiased; even-odd for the one closed outline.
    virtual void FillPolygon(std::span<const PointF> outline, Color color) = 0;

    /// An antialiased open line, `width` twips thick, with round joins.
    virtual void DrawPolyline(std::span<const PointF> points, double width, Color color) = 0;

    virtual void DrawText(std::string_view text, const Rect& area, const TextStyle& style) = 0;
    virtual Size MeasureText(std::string_view text, const Font& font) = 0;

    /// Until the matching PopClip, drawing is limited to the intersection with `area`.
    virtual void PushClip(const Rect& area) = 0;
    virtual void PopClip() = 0;

    void DrawFrame(const Rect& area, Color color) { DrawFrame(area, color, 1); }
};

/// Keeps a clip for a scope.
class ClipScope {
  public:
    ClipScope(Surface& surface, const Rect& area) : surface_(surface) { surface_.PushClip(area); }
    ~ClipScope() { surface_.PopClip(); }
    ClipScope(const ClipScope&) = delete;
    ClipScope& operator=(const ClipScope&) = delete;

  private:
    Surface& surface_;
};

}  // namespace tavrin::forms
