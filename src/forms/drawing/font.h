#pragma once

#include <string>

namespace tavrin::forms {

struct Font {
    std::string face = "Arial";
    double points = 9;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool operator==(const Font&) const = default;
};

}  // namespace tavrin::forms
