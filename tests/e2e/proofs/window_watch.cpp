#include "e2e/proofs/window_watch.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "support/window_holders.h"
#include "win32/peers/disagreement.h"

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

std::string WronglyEnabled(const std::vector<Seen>& all) {
    for (const Seen& held : all) {
        for (const Seen& holder : all) {
            if (held.isEnabled && holder.isVisible && tests::MustHold(holder.name, held.name))
                return held.name + " is enabled under " + holder.name;
        }
    }
    return {};
}

std::string Describe(LRESULT differs) {
    constexpr std::pair<LRESULT, const char*> aspects[] = {
        {win32::disagreement::Enabled, "enabled"}, {win32::disagreement::Visible, "visible"},
        {win32::disagreement::Focus, "focus"},     {win32::disagreement::Pressed, "pressed"},
        {win32::disagreement::Text, "text"},       {win32::disagreement::Selection, "selection"}};
    std::string text;
    for (const auto& [bit, name] : aspects)
        if (differs & bit) text += std::string(" ") + name;
    return text;
}

/// What a form and its controls show otherwise than they say. On the thread of the windows.
std::string Disagreement(const Window& form, WindowWatch::Events events) {
    std::vector<Window> windows = form.Controls();
    windows.push_back(form);
    for (const Window& window : windows) {
        LRESULT differs = SendMessageW(window.Handle(), win32::DisagreementQuestion, 0, 0);
        if (events == WindowWatch::Events::Sent) differs &= ~win32::disagreement::Focus;
        if (differs != 0) return form.Name() + "." + window.Name() + " differs in" + Describe(differs);
    }
    return {};
}

/// A menu, a drag or an open list: something is on its way.
bool IsBusy() {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    return info.flags != 0 || info.hwndCapture != nullptr;
}

}  // namespace

std::string WindowWatch::Complaint(Events events) {
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
    if (std::string complaint = WronglyEnabled(seen); !complaint.empty()) return complaint;
    return host_.Call([events] {
        std::string difference;
        if (IsBusy()) return difference;
        for (const Window& form : OpenForms()) {
            if (difference.empty()) difference = Disagreement(form, events);
        }
        return difference;
    });
}

}  // namespace tavrin::e2e
