#include "host/program/form_finder.h"

#include <array>
#include <string>

#include "win32/base/text.h"

namespace tavrin::host {
namespace {

struct Search {
    std::wstring (*read)(HWND window);  ///< what of a window is compared with the text
    std::wstring text;
    HWND found = nullptr;
};

std::wstring NameOf(HWND window) {
    const HANDLE property = GetPropW(window, L"Tavrin.Name");
    if (property == nullptr) return {};
    std::array<wchar_t, 256> name{};
    const UINT length = GlobalGetAtomNameW(static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(property)),
                                           name.data(), static_cast<int>(name.size()));
    return {name.data(), length};
}

std::wstring ClassOf(HWND window) {
    std::array<wchar_t, 256> name{};
    const int length = GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return {name.data(), static_cast<std::size_t>(length)};
}

bool IsOwn(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

BOOL CALLBACK Compare(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    if (!IsOwn(window) || !IsWindowVisible(window) || search.read(window) != search.text) return TRUE;
    search.found = window;
    return FALSE;
}

HWND FindOnScreen(std::wstring (*read)(HWND), std::string_view text) {
    Search search{read, win32::ToWide(text)};
    EnumWindows(Compare, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

}  // namespace

HWND FindForm(std::string_view name) {
    return FindOnScreen(NameOf, name);
}

HWND FindPlatformWindow(std::string_view className) {
    return FindOnScreen(ClassOf, className);
}

HWND FindControl(HWND form, std::string_view name) {
    Search search{NameOf, win32::ToWide(name)};
    EnumChildWindows(form, Compare, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

}  // namespace tavrin::host
