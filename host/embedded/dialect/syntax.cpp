#include "host/embedded/dialect/syntax.h"

namespace tavrin::host::dialect {

std::string ObjectName::Text() const {
    std::string text;
    for (const std::string& part : parts) {
        if (!text.empty()) text += '.';
        text += part;
    }
    return text;
}

std::string ColumnName::Text() const {
    return qualifier.parts.empty() ? name : qualifier.Text() + "." + name;
}

}  // namespace tavrin::host::dialect
