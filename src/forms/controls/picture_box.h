#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/model/control.h"

namespace tavrin::forms {

/// An area into which texts are printed.
class PictureBox : public Control {
  public:
    PictureBox(Container& parent, std::string_view name, Rect bounds = {});

    /// Paints the area in one colour; what was printed is gone.
    void Paint(Color backColor, Color foreColor);
    /// Prints a text with its top left corner at a place in twips.
    void PrintAt(Point at, std::string text);

    struct PrintedText {
        Point at;
        std::string text;
        bool operator==(const PrintedText&) const = default;
    };
    const std::vector<PrintedText>& Printed() const { return printed_; }

    void Draw(Surface& surface) const override;
    AccessibleNode Accessible() const override;

  private:
    std::vector<PrintedText> printed_;
};

}  // namespace tavrin::forms
