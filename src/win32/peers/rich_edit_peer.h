#pragma once

#include <optional>

#include "forms/rich_text_box.h"
#include "win32/peers/control_window.h"

namespace tavrin::win32 {

/// The platform's rich text control in a frame of ours: the document is the control's. It stands on the
/// system's window colour, because notes come from and go to programs that do too. The control's library is
/// loaded with the first peer and stays: the clipboard may hold what was made in it.
class RichEditPeer final : public ControlWindow, public forms::RichTextEditor {
  public:
    RichEditPeer(forms::RichTextBox& control, FormPeer& form);

    void Changed(forms::Aspect aspect) override;

    std::string Text() const override;
    void SetText(const std::string& text) override;
    forms::CharacterFormat SelectionFormat() const override;
    void FormatSelection(const forms::CharacterFormat& format) override;
    void Load(std::string_view rtf) override;
    std::string Save() const override;
    bool ExchangesIndents() const override;

  protected:
    LRESULT HandleMessage(const Message& message) override;
    LRESULT OnKey(const Message& message) override;
    LRESULT OnSetFocus(const Message& message) override;
    LRESULT OnKillFocus(const Message& message) override;

  private:
    LRESULT OnCalculateClientArea(const Message& message);
    LRESULT OnPaintFrame(const Message& message);
    LRESULT OnMouse(const Message& message);
    LRESULT OnRelease(const Message& message);
    LRESULT OnCaptureChanged(const Message& message);
    LRESULT OnMouseWheel(const Message& message);

    /// False where the platform's field is not to act on it any more.
    bool TellModelOfMouse(const Message& message);
    void ReportSelection();
    void UseStandardFormat();
    bool WritesEveryLetter() const;

    forms::RichTextBox& control_;
    mutable std::optional<bool> writesEveryLetter_;
    mutable std::optional<bool> exchangesIndents_;
    bool holdsPress_ = false;   ///< a button of the mouse went down here and is the editor's to act on
    bool isReleasing_ = false;  ///< the left button goes up: the mouse is given back, not taken away
};

}  // namespace tavrin::win32
