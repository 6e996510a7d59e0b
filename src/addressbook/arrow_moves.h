#pragma once

#include <optional>

namespace tavrin::addressbook {

/// Where an arrow key takes the focus from a text box: to another box, or to the button that accepts.
struct ArrowTarget {
    enum class Kind { Box, AcceptButton };
    Kind kind = Kind::Box;
    int box = 0;
    bool operator==(const ArrowTarget&) const = default;
};

/// The target of Up or Down (virtual-key codes) from a box by its index; nothing where the focus stays.
std::optional<ArrowTarget> ArrowMove(int box, int keyCode);

}  // namespace tavrin::addressbook
