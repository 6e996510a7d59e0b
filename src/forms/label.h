#pragma once

#include <string>

#include "forms/control.h"

namespace tavrin::forms {

/// A caption; takes no focus.
class Label : public Control {
  public:
    Label(Container& parent, std::string name, std::string caption = {}, Rect bounds = {});

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption);
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
