#include "e2e/proofs/window_watch.h"

#include <algorithm>
#include <vector>

#include "support/window_holders.h"

namespace tavrin::e2e {

namespace {

/// A window of the component's, or one that shuts the others out.
struct Seen {
    HWND handle;
    std::string name;  ///< empty for a message or a dialog
    bool isVisible;
    bool isEnabled;
};

BOOL CALLBACK See(HWND handle, LPARAM seen) {
    DWORD process = 0;
    GetWindowThreadProcessId(handle, &process);
    if (process != GetCurrentProcessId()) return TRUE;
    const Window window(handle);
    std::string name = window.Name();
    const bool isModal = name.empty() && window.IsVisible() && window.ClassName() == "#32770";
    if (!name.empty() || isModal) {
        reinterpret_cast<std::vector<Seen>*>(seen)->push_back(
            {handle, std::move(name), window.IsVisible(), window.IsEnabled()});
    }
    return TRUE;
}

bool IsHeld(const Seen& window, const std::vector<Seen>& all) {
    return std::ranges::any_of(all,
                               [&](const Seen& other) { return tests::MayHold(other.name, window.name); });
}

}  // namespace

std::string WindowWatch::Complaint() {
    std::vector<Seen> seen;
    host_.Call([&] { EnumWindows(See, reinterpret_cast<LPARAM>(&seen)); });
    std::set<HWND> open;
    for (const Seen& window : seen) {
        if (window.name.empty()) continue;
        open.insert(window.handle);
        if (!open_.contains(window.handle)) ++openings_;
    }
    open_ = std::move(open);
    if (std::ranges::any_of(seen, [](const Seen& window) { return window.name.empty(); })) return {};
    for (const Seen& window : seen) {
        // Who was opened from a window keeps it, closed and out of sight as it may be by now.
        if (IsHeld(window, seen)) continue;
        if (!window.isVisible) return window.name + " is open and out of sight";
        if (!window.isEnabled) return window.name + " is disabled and nobody will enable it";
    }
    return {};
}

}  // namespace tavrin::e2e
