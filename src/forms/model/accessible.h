#pragma once

#include <string>

#include "forms/drawing/geometry.h"

namespace tavrin::forms {

enum class Role {
    StaticText,
    PushButton,
    EditableText,
    ComboBox,
    Grouping,
    Graphic,
    Table,
    Cell,
    ColumnHeader,
    Chart,
    DateField
};

/// What an assistive tool is told of a control or of one of its parts.
struct AccessibleNode {
    Role role = Role::StaticText;
    std::string name;
    std::string value;
    std::string description;
    Rect bounds;               ///< from the control's own top left corner
    char32_t accelerator = 0;  ///< the letter that acts together with Alt, 0 for none
    bool focusable = false;
    bool focused = false;
    bool selected = false;
    bool selectable = false;
    bool pressed = false;
    bool readOnly = false;
    bool invisible = false;
    bool unavailable = false;
    bool expandable = false;  ///< opens something, which `expanded` says is open
    bool expanded = false;
};

}  // namespace tavrin::forms
