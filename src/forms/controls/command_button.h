#pragma once

#include <string>
#include <string_view>

#include "forms/drawing/icon.h"
#include "forms/model/control.h"

namespace tavrin::forms {

/// A push button with a caption, a picture, or both. Enter and Space click it, as does Alt with its
/// accelerator; the arrows move the focus to its neighbours.
class CommandButton : public Control {
  public:
    CommandButton(Container& parent, std::string_view name, std::string_view caption = {}, Rect bounds = {});

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);
    /// Its first occurrence in the caption is underlined.
    char32_t Accelerator() const override { return accelerator_; }
    void SetAccelerator(char32_t letter);
    Icon Picture() const { return picture_; }
    void SetPicture(Icon picture);

    bool IsFocusable() const override { return true; }
    void Draw(Surface& surface) const override;
    AccessibleNode Accessible() const override;

  protected:
    KeyOutcome DefaultKeyDown(int keyCode, Modifiers modifiers) override;

  private:
    Color FaceColor() const;
    void DrawPicture(Surface& surface) const;
    void DrawPictureAndCaption(Surface& surface) const;
    void DrawCaption(Surface& surface, const Rect& area, std::string_view text, Align align) const;

    std::string caption_;
    char32_t accelerator_ = 0;
    Icon picture_ = Icon::None;
};

}  // namespace tavrin::forms
