#include "e2e/driver/window.h"

#include <algorithm>
#include <array>

#include "e2e/driver/wait.h"
#include "win32/base/text.h"

namespace tavrin::e2e {

namespace {

using Windows = std::vector<Window>;

BOOL CALLBACK Collect(HWND handle, LPARAM windows) {
    reinterpret_cast<Windows*>(windows)->emplace_back(handle);
    return TRUE;
}

bool IsOwn(HWND handle) {
    DWORD process = 0;
    GetWindowThreadProcessId(handle, &process);
    return process == GetCurrentProcessId();
}

HWND FocusedWindow() {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    const HWND foreground = GetForegroundWindow();
    if (foreground == nullptr || !IsOwn(foreground)) return nullptr;
    return GetGUIThreadInfo(GetWindowThreadProcessId(foreground, nullptr), &info) ? info.hwndFocus : nullptr;
}

std::optional<Window> FindByName(const Windows& windows, const std::string& name) {
    const auto found = std::ranges::find(windows, name, &Window::Name);
    return found != windows.end() ? std::optional(*found) : std::nullopt;
}

}  // namespace

std::string Window::Name() const {
    const HANDLE property = GetPropW(handle_, L"Tavrin.Name");
    if (property == nullptr) return {};
    std::array<wchar_t, 256> name{};
    const UINT length = GlobalGetAtomNameW(static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(property)),
                                           name.data(), static_cast<int>(name.size()));
    return win32::ToUtf8({name.data(), length});
}

std::string Window::Text() const {
    std::array<wchar_t, 1024> text{};
    const int length = GetWindowTextW(handle_, text.data(), static_cast<int>(text.size()));
    return win32::ToUtf8({text.data(), static_cast<std::size_t>(length)});
}

std::string Window::ClassName() const {
    std::array<wchar_t, 256> name{};
    const int length = GetClassNameW(handle_, name.data(), static_cast<int>(name.size()));
    return win32::ToUtf8({name.data(), static_cast<std::size_t>(length)});
}

bool Window::IsTopmost() const {
    return (GetWindowLongPtrW(handle_, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

bool Window::HasFocus() const {
    const HWND focused = FocusedWindow();
    return focused != nullptr && (focused == handle_ || IsChild(handle_, focused));
}

RECT Window::ScreenBounds() const {
    RECT bounds{};
    GetWindowRect(handle_, &bounds);
    return bounds;
}

POINT Window::Center() const {
    const RECT bounds = ScreenBounds();
    return {(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
}

int Window::Width() const {
    const RECT bounds = ScreenBounds();
    return static_cast<int>(bounds.right - bounds.left);
}

int Window::Height() const {
    const RECT bounds = ScreenBounds();
    return static_cast<int>(bounds.bottom - bounds.top);
}

std::vector<Window> Window::Controls() const {
    Windows children;
    EnumChildWindows(handle_, Collect, reinterpret_cast<LPARAM>(&children));
    std::erase_if(children, [](const Window& child) { return child.Name().empty(); });
    return children;
}

std::optional<Window> Window::FindControl(const std::string& name) const {
    return FindByName(Controls(), name);
}

Window Window::Control(const std::string& name) const {
    const auto control = FindControl(name);
    if (!control) throw DriverError(Name() + " has no control " + name);
    return *control;
}

std::vector<Window> TopLevelWindows() {
    Windows windows;
    EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
    std::erase_if(windows,
                  [](const Window& window) { return !window.IsVisible() || !IsOwn(window.Handle()); });
    return windows;
}

std::vector<Window> OpenForms() {
    Windows forms = TopLevelWindows();
    std::erase_if(forms, [](const Window& form) { return form.Name().empty(); });
    return forms;
}

std::optional<Window> FindForm(const std::string& name) {
    return FindByName(OpenForms(), name);
}

Window AwaitForm(const std::string& name) {
    Require("the window " + name, [&] { return FindForm(name).has_value(); });
    return *FindForm(name);
}

bool AwaitClosed(const std::string& name) {
    return WaitUntil([&] { return !FindForm(name); });
}

std::string FocusedName() {
    for (HWND handle = FocusedWindow(); handle != nullptr; handle = GetParent(handle)) {
        if (std::string name = Window(handle).Name(); !name.empty()) return name;
    }
    return {};
}

bool AwaitFocus(const std::string& name) {
    return WaitUntil([&] { return FocusedName() == name; });
}

}  // namespace tavrin::e2e
