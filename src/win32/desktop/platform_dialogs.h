#pragma once

#include "forms/model/common_dialog.h"
#include "win32/window/modality.h"

namespace tavrin::win32 {

/// The platform's own dialogs, owned by the form's window. Their library is loaded while one is up.
class PlatformDialogs final : public forms::Dialogs {
  public:
    /// `heldWindows` are those of the desktop.
    explicit PlatformDialogs(HeldWindows& heldWindows) : heldWindows_(heldWindows) {}

    bool ShowOpen(const forms::Form& owner, forms::FileDialogSettings& settings) override;
    bool ShowSave(const forms::Form& owner, forms::FileDialogSettings& settings) override;
    bool ShowFont(const forms::Form& owner, forms::FontDialogSettings& settings) override;
    bool ShowColor(const forms::Form& owner, forms::Color& color) override;

  private:
    bool ShowFileDialog(const forms::Form& owner, forms::FileDialogSettings& settings, const char* name);

    HeldWindows& heldWindows_;
};

}  // namespace tavrin::win32
