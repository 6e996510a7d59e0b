#include "host/program/form_finder.h"

#include <array>
#include <string>

#include "win32/text.h"

namespace tavrin::host {
namespace {

struct Search {
    std::wstring name;
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

BOOL CALLBACK Compare(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    if (!IsWindowVisible(window) || NameOf(window) != search.name) return TRUE;
    search.found = window;
    return FALSE;
}

}  // namespace

HWND FindForm(std::string_view name) {
    Search search{win32::ToWide(name)};
    EnumThreadWindows(GetCurrentThreadId(), Compare, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND FindControl(HWND form, std::string_view name) {
    Search search{win32::ToWide(name)};
    EnumChildWindows(form, Compare, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

}  // namespace tavrin::host
