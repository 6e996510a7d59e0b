#include "addressbook/edit_rules.h"

#include "data/text/trim.h"

namespace tavrin::addressbook {

OpenBoxes OpenBoxesOf(const EditState& state) {
    return {.names = state.isEditing && state.mode != EditMode::Modify, .details = state.isEditing};
}

bool CancelsEdit(const EditState& state) {
    return state.isEditing && state.mode != EditMode::Browse;
}

std::optional<std::size_t> MissingColumn(const Person& person) {
    for (const std::size_t column : {NumeColumn, PrenumeColumn}) {
        if (data::IsBlank(person[column])) return column;
    }
    return std::nullopt;
}

}  // namespace tavrin::addressbook
