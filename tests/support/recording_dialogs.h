#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/model/common_dialog.h"

namespace tavrin::tests {

/// Keeps what every dialog showed and answers as the test laid down: cancelled unless told otherwise.
class RecordingDialogs : public forms::Dialogs {
  public:
    bool ShowOpen(const forms::Form& owner, forms::FileDialogSettings& settings) override;
    bool ShowSave(const forms::Form& owner, forms::FileDialogSettings& settings) override;
    bool ShowFont(const forms::Form& owner, forms::FontDialogSettings& settings) override;
    bool ShowColor(const forms::Form& owner, forms::Color& color) override;

    std::vector<forms::FileDialogSettings> opened;
    std::vector<forms::FileDialogSettings> saved;
    std::vector<forms::FontDialogSettings> fonts;
    std::vector<forms::Color> colors;

    // What the user chooses; nothing cancels.
    std::optional<std::string> chosenFile;
    std::optional<forms::CharacterFormat> chosenFont;
    std::optional<forms::Color> chosenColor;

    /// What happens while a dialog is up, with the window that owns it.
    std::function<void(const forms::Form& owner)> whileShowing;

  private:
    bool ShowFile(const forms::Form& owner, forms::FileDialogSettings& settings);
    void Show(const forms::Form& owner) const;
};

}  // namespace tavrin::tests
