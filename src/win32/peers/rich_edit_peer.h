#pragma once

#include <optional>

#include "forms/controls/rich_text_box.h"
#include "win32/peers/edit_window.h"

namespace tavrin::win32 {

/// The platform's rich text control in a frame of ours: the document is the control's. It stands on the
/// system's window colour, because notes come from and go to programs that do too. The control's library is
/// loaded with the first peer and stays: the clipboard may hold what was made in it.
class RichEditPeer final : public EditWindow, public forms::RichTextEditor {
  public:
    RichEditPeer(forms::RichTextBox& control, FormPeer& form);

    std::string Text() const override;
    void SetText(const std::string& text) override;
    forms::CharacterFormat SelectionFormat() const override;
    void FormatSelection(const forms::CharacterFormat& format) override;
    void Load(std::string_view rtf) override;
    std::string Save() const override;
    bool ExchangesIndents() const override;

    void Rescale() override;

  protected:
    LRESULT HandleMessage(const Message& message) override;
    void ReportSelection() override;
    /// The buttons of the formats follow when the drag has ended.
    bool FollowsDrag() const override { return false; }

  private:
    LRESULT OnCalculateClientArea(const Message& message);
    LRESULT OnPaintFrame(const Message& message);
    LRESULT OnMouseWheel(const Message& message);

    void UseStandardFormat();
    void ShowZoom();
    bool WritesEveryLetter() const;

    forms::RichTextBox& control_;
    int zoom_ = 100;  ///< percent
    mutable std::optional<bool> writesEveryLetter_;
    mutable std::optional<bool> exchangesIndents_;
};

}  // namespace tavrin::win32
