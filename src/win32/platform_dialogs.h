#pragma once

#include "forms/common_dialog.h"

namespace tavrin::win32 {

/// The platform's own dialogs, owned by the form's window. Their library is loaded while one is up.
class PlatformDialogs final : public forms::Dialogs {
  public:
    bool ShowOpen(const forms::Form& owner, forms::FileDialogSettings& settings) override;
    bool ShowSave(const forms::Form& owner, forms::FileDialogSettings& settings) override;
    bool ShowFont(const forms::Form& owner, forms::FontDialogSettings& settings) override;
    bool ShowColor(const forms::Form& owner, forms::Color& color) override;
};

}  // namespace tavrin::win32
