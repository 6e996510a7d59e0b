#pragma once

#include "forms/drawing/surface.h"

namespace tavrin::forms {

/// The pictures of the system, drawn as vectors so that they are sharp at every resolution.
enum class Icon {
    None,
    NotePad,
    AddressBook,
    Calculator,
    Exchange,
    RollUp,
    Restore,
    Close,
    Add,
    Modify,
    Remove,
    AddCurrency,
    Chart,
    Exit,
    Accept,
    Cancel,
    Filter,
    NewNote,
    Save,
    Letters,
    TextColor,
    Bold,
    Italic,
    Underline,
};

/// Draws an icon centred in `area`, as large as a square fits in.
void DrawIcon(Surface& surface, Icon icon, const Rect& area, Color color);

}  // namespace tavrin::forms
