#pragma once

#include "forms/controls/text_box.h"
#include "win32/peers/edit_window.h"

namespace tavrin::win32 {

/// The platform's single-line edit field in a frame of ours. It edits; the model is told of every change and
/// of the selection before each key.
class EditPeer final : public EditWindow {
  public:
    EditPeer(forms::TextBox& control, FormPeer& form);

    void Changed(forms::Aspect aspect) override;
    void TakeFocus() override;
    void Rescale() override;

  protected:
    LRESULT HandleMessage(const Message& message) override;
    LRESULT OnKey(const Message& message) override;
    void ReportSelection() override;
    LRESULT Disagreement() const override;

  private:
    LRESULT OnCalculateClientArea(const Message& message);
    LRESULT OnPaintFrame(const Message& message);
    LRESULT OnHitTest(const Message& message);
    LRESULT OnColors(const Message& message);
    LRESULT OnPaint(const Message& message);
    void PaintBrowsed(HDC dc) const;
    LRESULT OnCommand(const Message& message);
    LRESULT OnEditing(const Message& message);

    LRESULT PassCharacter(const Message& message);
    void ShowText();
    void ShowSelection();
    void ShowFont();
    EditFrame Frame() const;
    /// The colour beneath the text, as it goes to the screen.
    forms::Color BackgroundColor() const;

    forms::TextBox& control_;
    /// Set while the model's state is written into the field, whose notifications are no news then.
    bool isShowing_ = false;
};

}  // namespace tavrin::win32
