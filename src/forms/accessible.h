#pragma once

#include <string>

#include "forms/geometry.h"

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
    Chart,
    DateField
};

/// What an assistive tool is told of a control or of one of its parts.
struct AccessibleNode {
    Role role = Role::StaticText;
    std::string name;
    std::string value;
    std::string description;
    Rect bounds;  ///< from the control's own top left corner
    bool focusable = false;
    bool focused = false;
    bool selected = false;
    bool selectable = false;
    bool pressed = false;
    bool readOnly = false;
    bool invisible = false;
    bool unavailable = false;
};

}  // namespace tavrin::forms
