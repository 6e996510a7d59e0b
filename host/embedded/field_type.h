#pragma once

#include <string>

namespace tavrin::host {

/// What a server says of a field besides its name.
enum class FieldType { Integer, Double, Money, DateTime, Text };

struct FieldInfo {
    std::string name;  ///< empty for an expression without an alias
    FieldType type = FieldType::Text;
    int definedSize = 0;  ///< characters for text, else bytes
};

}  // namespace tavrin::host
