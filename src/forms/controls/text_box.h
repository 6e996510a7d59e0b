#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/model/control.h"

namespace tavrin::forms {

/// A single-line edit field. Editing keys are the platform field's business; it reports what it did through
/// HandleEdited and HandleSelection. Positions count characters (code points).
class TextBox : public Control {
  public:
    TextBox(Container& parent, std::string_view name, Rect bounds = {});
    ControlKind Kind() const override { return ControlKind::TextBox; }

    const std::string& Text() const { return text_; }
    /// Raises onChange when the text differs; the caret goes to the start.
    void SetText(std::string text);
    int TextLength() const;
    bool Locked() const { return locked_; }  ///< shown and copied, but not changed
    void SetLocked(bool locked);
    Align Alignment() const { return align_; }
    void SetAlignment(Align align);
    bool Bordered() const { return bordered_; }  ///< a thin frame around the field
    void SetBordered(bool bordered);
    int SelStart() const { return selStart_; }
    int SelLength() const { return selLength_; }
    void Select(int start, int length);
    void SelectAll() { Select(0, TextLength()); }
    std::string SelText() const;

    std::function<void(int notches)> onWheel;

    /// Entry points of the platform's field. What it brings while no input is taken is taken back in it.
    void HandleEdited(std::string text, int selStart, int selLength);
    void HandleSelection(int selStart, int selLength);
    /// Puts a text in place of the selection, as typing or pasting does; nothing while locked.
    void ReplaceSelection(const std::string& text);

    bool IsFocusable() const override { return true; }
    void HandleWheel(int notches) override;
    AccessibleNode Accessible() const override;

  private:
    std::string text_;
    int selStart_ = 0;
    int selLength_ = 0;
    bool locked_ = false;
    bool bordered_ = true;
    Align align_ = Align::Left;
};

}  // namespace tavrin::forms
