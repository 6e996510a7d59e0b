#pragma once

#include <optional>
#include <string>

#include "forms/drawing/color.h"

namespace tavrin::forms {

/// How characters look. Read from a selection, a property that differs inside it has no value; applied to a
/// selection, a property without a value is left as it is.
struct CharacterFormat {
    std::optional<std::string> face = {};
    std::optional<double> points = {};
    std::optional<bool> bold = {};
    std::optional<bool> italic = {};
    std::optional<bool> underline = {};
    std::optional<bool> strikeThru = {};
    std::optional<Color> color = {};
    bool operator==(const CharacterFormat&) const = default;
};

}  // namespace tavrin::forms
