#pragma once

#include <string>
#include <string_view>

#include "forms/controls/image.h"

namespace tavrin::forms {

/// The border around a tool button's picture.
enum class ToolLook { Resting, Raised, Sunken };

/// A picture on a bar that acts as a button. Its form chooses the border; a sunken one shifts the picture.
/// The mouse leaves the focus where it is; the keyboard reaches the button by Tab, the arrows walk along the
/// bar, and Enter and Space click.
class ToolButton : public Image {
  public:
    ToolButton(Container& parent, std::string_view name, Rect bounds = {});

    ToolLook Look() const { return look_; }
    void SetLook(ToolLook look);
    /// What the button switches is on.
    bool Checked() const { return checked_; }
    void SetChecked(bool checked);

    bool IsFocusable() const override { return true; }
    bool TakesFocusOnPress() const override { return false; }
    void Draw(Surface& surface) const override;
    AccessibleNode Accessible() const override;

  protected:
    KeyOutcome DefaultKeyDown(int keyCode, Modifiers modifiers) override;

  private:
    Color FaceColor() const;

    ToolLook look_ = ToolLook::Resting;
    bool checked_ = false;
};

}  // namespace tavrin::forms
