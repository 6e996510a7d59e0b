#pragma once

#include <string>
#include <string_view>

#include "forms/model/control.h"

namespace tavrin::forms {

/// A caption; takes no focus.
class Label : public Control {
  public:
    Label(Container& parent, std::string_view name, std::string_view caption = {}, Rect bounds = {});

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);
    void SetAlign(Align align);
    void SetWrap(bool wrap);

    void Draw(Surface& surface) const override;
    AccessibleNode Accessible() const override;

  private:
    std::string caption_;
    Align align_ = Align::Left;
    bool wrap_ = false;
};

}  // namespace tavrin::forms
