#pragma once

#include <string>
#include <string_view>

#include "forms/drawing/icon.h"
#include "forms/model/control.h"

namespace tavrin::forms {

/// A picture that can be clicked but never has the focus.
class Image : public Control {
  public:
    Image(Container& parent, std::string_view name, Rect bounds = {});

    Icon Picture() const { return picture_; }
    void SetPicture(Icon picture);

    void Draw(Surface& surface) const override;
    AccessibleNode Accessible() const override;

  private:
    /// Lights up under the mouse, and is a button to assistive tools.
    bool IsClickable() const;

    Icon picture_ = Icon::None;
};

}  // namespace tavrin::forms
