#include "e2e/driver/platform_dialog.h"

#include <optional>

#include "e2e/driver/input.h"
#include "e2e/driver/wait.h"

namespace tavrin::e2e {

namespace {

std::optional<Window> FindOf(const Window& owner) {
    for (const Window& window : TopLevelWindows()) {
        const bool isOwned = GetWindow(window.Handle(), GW_OWNER) == owner.Handle();
        if (isOwned && window.ClassName() == "#32770") return window;
    }
    return std::nullopt;
}

}  // namespace

PlatformDialog PlatformDialog::AwaitOf(const Window& owner) {
    Require("a dialog with the keyboard", [&] {
        const auto dialog = FindOf(owner);
        return dialog && dialog->HasFocus();
    });
    return PlatformDialog(*FindOf(owner));
}

void PlatformDialog::Fill(int id, std::wstring_view text) const {
    Click(Item(id));
    Require("the dialog's field", [&] { return Item(id).HasFocus(); });
    PressKey(VK_END);
    PressKey(VK_HOME, {VK_SHIFT});
    TypeUnicode(text);
}

void PlatformDialog::Confirm() const {
    PressKey(VK_RETURN);
    AwaitGone();
}

void PlatformDialog::Cancel() const {
    PressKey(VK_ESCAPE);
    AwaitGone();
}

void PlatformDialog::AwaitGone() const {
    Require("the dialog to close", [&] { return !window_.IsVisible(); });
}

}  // namespace tavrin::e2e
