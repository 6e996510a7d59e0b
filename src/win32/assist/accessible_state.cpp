#include "win32/assist/accessible_state.h"

#include <oleacc.h>

namespace tavrin::win32 {

LONG RoleOf(const forms::AccessibleNode& node) {
    switch (node.role) {
        case forms::Role::StaticText:
            return ROLE_SYSTEM_STATICTEXT;
        case forms::Role::PushButton:
            return ROLE_SYSTEM_PUSHBUTTON;
        case forms::Role::EditableText:
            return ROLE_SYSTEM_TEXT;
        case forms::Role::ComboBox:
            return ROLE_SYSTEM_COMBOBOX;
        case forms::Role::Grouping:
            return ROLE_SYSTEM_GROUPING;
        case forms::Role::Graphic:
            return ROLE_SYSTEM_GRAPHIC;
        case forms::Role::Table:
            return ROLE_SYSTEM_TABLE;
        case forms::Role::Cell:
            return ROLE_SYSTEM_CELL;
        case forms::Role::ColumnHeader:
            return ROLE_SYSTEM_COLUMNHEADER;
        case forms::Role::Chart:
            return ROLE_SYSTEM_CHART;
        case forms::Role::DateField:
            return ROLE_SYSTEM_DROPLIST;
    }
    return ROLE_SYSTEM_CLIENT;
}

LONG StateOf(const forms::AccessibleNode& node) {
    LONG state = 0;
    if (node.focusable) state |= STATE_SYSTEM_FOCUSABLE;
    if (node.focused) state |= STATE_SYSTEM_FOCUSED;
    if (node.selectable) state |= STATE_SYSTEM_SELECTABLE;
    if (node.selected) state |= STATE_SYSTEM_SELECTED;
    if (node.pressed) state |= STATE_SYSTEM_PRESSED;
    if (node.readOnly) state |= STATE_SYSTEM_READONLY;
    if (node.invisible) state |= STATE_SYSTEM_INVISIBLE;
    if (node.unavailable) state |= STATE_SYSTEM_UNAVAILABLE;
    if (node.expandable) state |= node.expanded ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED;
    return state;
}

}  // namespace tavrin::win32
