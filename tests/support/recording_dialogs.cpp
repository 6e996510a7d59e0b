#include "support/recording_dialogs.h"

namespace tavrin::tests {

void RecordingDialogs::Show(const forms::Form& owner) const {
    if (whileShowing) whileShowing(owner);
}

bool RecordingDialogs::ShowFile(const forms::Form& owner, forms::FileDialogSettings& settings) {
    Show(owner);
    if (!chosenFile) return false;
    settings.fileName = *chosenFile;
    return true;
}

bool RecordingDialogs::ShowOpen(const forms::Form& owner, forms::FileDialogSettings& settings) {
    opened.push_back(settings);
    return ShowFile(owner, settings);
}

bool RecordingDialogs::ShowSave(const forms::Form& owner, forms::FileDialogSettings& settings) {
    saved.push_back(settings);
    return ShowFile(owner, settings);
}

bool RecordingDialogs::ShowFont(const forms::Form& owner, forms::FontDialogSettings& settings) {
    fonts.push_back(settings);
    Show(owner);
    if (!chosenFont) return false;
    settings.font = *chosenFont;
    return true;
}

bool RecordingDialogs::ShowColor(const forms::Form& owner, forms::Color& color) {
    colors.push_back(color);
    Show(owner);
    if (!chosenColor) return false;
    color = *chosenColor;
    return true;
}

}  // namespace tavrin::tests
