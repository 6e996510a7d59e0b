#pragma once

#include <string_view>

#include "forms/model/control.h"

namespace tavrin::forms {

/// A rectangle behind other controls. It has no window of its own: its container paints it.
class Shape : public Control {
  public:
    Shape(Container& parent, std::string_view name, Rect bounds = {});
    ControlKind Kind() const override { return ControlKind::Decoration; }
    void Draw(Surface& surface) const override;
};

/// A thin straight line, horizontal or vertical by the longer side of its bounds; painted by its container.
class Line : public Control {
  public:
    static constexpr int Thickness = 15;  ///< twips

    Line(Container& parent, std::string_view name, Rect bounds = {});
    ControlKind Kind() const override { return ControlKind::Decoration; }
    void Draw(Surface& surface) const override;
};

/// Paints the decorations of a container, each at its place. Peers of containers call it under their
/// controls.
void DrawDecorations(const Container& container, Surface& surface);

}  // namespace tavrin::forms
