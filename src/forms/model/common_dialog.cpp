#include "forms/model/common_dialog.h"

#include "forms/model/form.h"

namespace tavrin::forms {

template <class Show>
bool CommonDialog::ShowModal(const Show& show) {
    const Desktop::MessageScope scope(owner_.OwnerDesktop());
    return show(owner_.OwnerDesktop().PlatformDialogs()) && owner_.IsLoaded();
}

bool CommonDialog::ShowOpen() {
    FileDialogSettings settings = FileSettings();
    if (!ShowModal([&](Dialogs& dialogs) { return dialogs.ShowOpen(owner_, settings); })) return false;
    fileName = settings.fileName;
    return true;
}

bool CommonDialog::ShowSave() {
    FileDialogSettings settings = FileSettings();
    if (!ShowModal([&](Dialogs& dialogs) { return dialogs.ShowSave(owner_, settings); })) return false;
    fileName = settings.fileName;
    return true;
}

bool CommonDialog::ShowFont() {
    FontDialogSettings settings{flags, font};
    if (!ShowModal([&](Dialogs& dialogs) { return dialogs.ShowFont(owner_, settings); })) return false;
    font = settings.font;
    color = font.color.value_or(color);
    return true;
}

bool CommonDialog::ShowColor() {
    Color chosen = color;
    if (!ShowModal([&](Dialogs& dialogs) { return dialogs.ShowColor(owner_, chosen); })) return false;
    color = chosen;
    return true;
}

}  // namespace tavrin::forms
