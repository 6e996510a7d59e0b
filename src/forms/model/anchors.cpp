#include "forms/model/anchors.h"

#include <algorithm>

#include "forms/model/form.h"

namespace tavrin::forms {

namespace {

/// What an edge does that follows the near or the far edge of what is around it.
struct Follows {
    bool start;
    bool end;
};

constexpr Follows Across(Anchors anchors) {
    const bool both = anchors == Anchors::Top || anchors == Anchors::Bottom || anchors == Anchors::All;
    const bool end =
        anchors == Anchors::TopRight || anchors == Anchors::Right || anchors == Anchors::BottomRight;
    return {!end, both || end};
}

constexpr Follows Down(Anchors anchors) {
    const bool both = anchors == Anchors::Left || anchors == Anchors::Right || anchors == Anchors::All;
    const bool end = anchors == Anchors::Bottom || anchors == Anchors::BottomRight;
    return {!end, both || end};
}

void Follow(Follows follows, int growth, int& start, int& length) {
    if (!follows.start) start += growth;
    if (follows.start && follows.end) length += growth;
}

Size SizeOf(Container& container) {
    const Control* const control = container.AsControl();
    if (control == nullptr) return container.OwnerForm().ClientSize();
    return {control->Bounds().width, control->Bounds().height};
}

}  // namespace

Rect Anchored(const Rect& designed, Size around, Size now, Anchors anchors) {
    Rect placed = designed;
    Follow(Across(anchors), now.width - around.width, placed.left, placed.width);
    Follow(Down(anchors), now.height - around.height, placed.top, placed.height);
    placed.width = std::max(0, placed.width);
    placed.height = std::max(0, placed.height);
    return placed;
}

void AnchorLayout::Add(Control& control, Anchors anchors) {
    entries_.push_back({&control, anchors, control.Bounds(), SizeOf(control.Parent())});
}

void AnchorLayout::Apply() const {
    for (const Entry& entry : entries_) {
        const Size now = SizeOf(entry.control->Parent());
        entry.control->SetBounds(Anchored(entry.designed, entry.around, now, entry.anchors));
    }
}

}  // namespace tavrin::forms
