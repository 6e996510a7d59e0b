#pragma once

#include <vector>

#include "forms/drawing/geometry.h"
#include "forms/model/container.h"

namespace tavrin::forms {

/// Which edges of what a control stands in its own edges follow. One that follows both of a direction grows
/// with it; one that follows only the far edge moves with it.
enum class Anchors { TopLeft, TopRight, Top, Left, Right, BottomRight, Bottom, All };

/// Where a control stands after what is around it has become another size.
/// \param around the size that `designed` was placed in
Rect Anchored(const Rect& designed, Size around, Size now, Anchors anchors);

/// How the controls of a window follow its size: each is placed from where it stood when it was added, so
/// that no number of sizes on the way leaves a trace.
class AnchorLayout {
  public:
    /// Takes down where the control stands. A frame is added before what is in it.
    void Add(Control& control, Anchors anchors);
    void Apply() const;

  private:
    struct Entry {
        Control* control;
        Anchors anchors;
        Rect designed;
        Size around;
    };
    std::vector<Entry> entries_;
};

}  // namespace tavrin::forms
