#pragma once

#include <cstddef>
#include <optional>

#include "addressbook/person.h"

namespace tavrin::addressbook {

// What the address book's window lets its user do, without the window.

enum class EditMode { Browse, Add, Modify };

struct EditState {
    EditMode mode = EditMode::Browse;
    /// Whether the buttons of an edit are visible. An edit that failed halfway is still in its mode.
    bool isEditing = false;
};

/// Which boxes of a person take what is typed.
struct OpenBoxes {
    bool names = false;
    bool details = false;
    bool operator==(const OpenBoxes&) const = default;
};
/// A name that is in the book never changes.
OpenBoxes OpenBoxesOf(const EditState& state);

/// Whether the Cancel button cancels an edit; otherwise it leaves the window.
bool CancelsEdit(const EditState& state);

/// The first column that a person may not be saved without; nothing when all are filled.
std::optional<std::size_t> MissingColumn(const Person& person);

}  // namespace tavrin::addressbook
