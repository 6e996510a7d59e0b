#include "e2e/driver/shown_message.h"

#include <algorithm>

#include "e2e/driver/input.h"
#include "e2e/driver/wait.h"

namespace tavrin::e2e {

namespace {

constexpr int PromptId = 0xFFFF;
constexpr int AllButtons[] = {IDOK, IDCANCEL, IDABORT, IDRETRY, IDIGNORE, IDYES, IDNO};

// The icon stands in a static control whose number differs between systems.
HICON ShownIcon(HWND message) {
    for (HWND child = GetWindow(message, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        const auto style = static_cast<DWORD>(GetWindowLongPtrW(child, GWL_STYLE));
        if (Window(child).ClassName() != "Static" || (style & SS_TYPEMASK) != SS_ICON) continue;
        return reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0));
    }
    return nullptr;
}

bool HasButton(HWND message, int id) {
    const HWND button = GetDlgItem(message, id);
    return button != nullptr && IsWindowVisible(button);
}

/// Windows gives a sole OK the number of Cancel, so that Escape presses it, and answers IDOK; Wine does not.
bool IsSoleOkNumberedCancel(HWND message) {
    return std::ranges::all_of(AllButtons,
                               [&](int id) { return HasButton(message, id) == (id == IDCANCEL); });
}

/// The button by the answer that it gives, null where there is none.
HWND ButtonOf(HWND message, int answer) {
    if (answer != IDOK && answer != IDCANCEL) return GetDlgItem(message, answer);
    if (!IsSoleOkNumberedCancel(message)) return GetDlgItem(message, answer);
    return answer == IDOK ? GetDlgItem(message, IDCANCEL) : nullptr;
}

}  // namespace

std::optional<ShownMessage> ShownMessage::Find() {
    for (const Window& window : TopLevelWindows()) {
        const bool isMessage =
            window.ClassName() == "#32770" && GetDlgItem(window.Handle(), PromptId) != nullptr;
        if (isMessage && window.IsEnabled()) return ShownMessage(window);
    }
    return std::nullopt;
}

ShownMessage ShownMessage::Await() {
    // A message that is still on its way to the front would miss a click.
    Require("a message in the foreground", [] {
        const auto message = Find();
        return message && message->window_.HasFocus();
    });
    return *Find();
}

bool ShownMessage::ComesToFront() const {
    return WaitUntil([&] { return IsInFront(); });
}

std::string ShownMessage::Prompt() const {
    return Window(GetDlgItem(window_.Handle(), PromptId)).Text();
}

MessageIcon ShownMessage::Icon() const {
    const HICON icon = ShownIcon(window_.Handle());
    if (icon == nullptr) return MessageIcon::None;
    if (icon == LoadIconW(nullptr, IDI_ERROR)) return MessageIcon::Error;
    if (icon == LoadIconW(nullptr, IDI_QUESTION)) return MessageIcon::Question;
    if (icon == LoadIconW(nullptr, IDI_EXCLAMATION)) return MessageIcon::Exclamation;
    if (icon == LoadIconW(nullptr, IDI_INFORMATION)) return MessageIcon::Information;
    throw DriverError("the message shows an unknown icon");
}

std::vector<int> ShownMessage::Buttons() const {
    std::vector<int> buttons;
    for (const int id : AllButtons) {
        const HWND button = ButtonOf(window_.Handle(), id);
        if (button != nullptr && IsWindowVisible(button)) buttons.push_back(id);
    }
    std::ranges::sort(buttons, {},
                      [&](int id) { return Window(ButtonOf(window_.Handle(), id)).ScreenBounds().left; });
    return buttons;
}

void ShownMessage::Press(int button) const {
    const Window target(ButtonOf(window_.Handle(), button));
    if (!target.Exists()) throw DriverError("the message has no button " + std::to_string(button));
    Click(target);
    Require("the message to close", [&] { return !window_.IsVisible(); });
}

void ShownMessage::Dismiss() const {
    PostMessageW(window_.Handle(), WM_COMMAND,
                 static_cast<WPARAM>(GetDlgCtrlID(ButtonOf(window_.Handle(), Buttons().back()))), 0);
}

}  // namespace tavrin::e2e
