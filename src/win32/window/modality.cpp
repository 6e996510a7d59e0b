#include "win32/window/modality.h"

#include <algorithm>

#include "forms/model/form.h"
#include "win32/base/translation.h"
#include "win32/window/window.h"

namespace tavrin::win32 {

namespace {

constexpr DWORD DialogClass = 32770;  ///< the atom of the platform's dialogs and messages

bool TakesInput(HWND window) {
    return IsWindowVisible(window) && IsWindowEnabled(window);
}

bool IsForm(const forms::Desktop& desktop, HWND window) {
    if (window == nullptr) return false;
    return std::ranges::any_of(desktop.Forms(),
                               [window](const forms::Form* form) { return WindowOf(*form) == window; });
}

/// A pop-up closes when it is left, and would take what is shown before it along.
HWND FormOfPopup(const forms::Desktop& desktop, HWND window) {
    const HWND owner = GetWindow(window, GW_OWNER);
    return IsForm(desktop, owner) && GetClassLongW(window, GCW_ATOM) != DialogClass ? owner : window;
}

BOOL CALLBACK CollectTakingInput(HWND window, LPARAM windows) noexcept {
    const HRESULT kept = Translated([&] {
        if (TakesInput(window)) reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
        return S_OK;
    });
    return kept == S_OK;  // without memory fewer windows wait
}

}  // namespace

HWND FindHostWindow(const forms::Desktop& desktop) {
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), CollectTakingInput, reinterpret_cast<LPARAM>(&windows));
    const auto host = std::ranges::find_if(windows, [&](HWND each) {
        return !IsForm(desktop, each) && !IsForm(desktop, GetWindow(each, GW_OWNER));
    });
    return host != windows.end() ? *host : nullptr;
}

HWND OwnerOfMessage(const forms::Desktop& desktop, HWND window) {
    const HWND owner = FormOfPopup(desktop, window);
    if (IsForm(desktop, owner)) EnableWindow(owner, TRUE);
    return owner != nullptr && TakesInput(owner) ? owner : nullptr;
}

void HeldWindows::Hold() {
    // What the mouse holds would take the mouse away from the message.
    ReleaseCapture();
    windows_.clear();
    EnumThreadWindows(GetCurrentThreadId(), CollectTakingInput, reinterpret_cast<LPARAM>(&windows_));
    std::erase(windows_, GetActiveWindow());
    for (const HWND window : windows_)
        EnableWindow(window, FALSE);
}

void HeldWindows::HoldActiveBut(HWND owner) {
    const HWND active = GetActiveWindow();
    if (active == nullptr || active == owner || !TakesInput(active)) return;
    windows_.push_back(active);
    EnableWindow(active, FALSE);
}

HWND HeldWindows::OwnerOfDialog(const forms::Form& form) {
    const HWND owner = OwnerOfMessage(form.OwnerDesktop(), WindowOf(form));
    HoldActiveBut(owner);
    return owner;
}

void HeldWindows::Release() noexcept {
    for (const HWND window : windows_)
        EnableWindow(window, TRUE);
    const HWND active = GetActiveWindow();
    const auto next = std::ranges::find_if(windows_, TakesInput);
    if ((active == nullptr || !TakesInput(active)) && next != windows_.end()) SetForegroundWindow(*next);
    windows_.clear();
}

}  // namespace tavrin::win32
