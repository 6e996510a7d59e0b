#include "windows/twin_window.h"

#include <commctrl.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "e2e/driver/window.h"
#include "win32/system/activation_context.h"
#include "windows/bare_windows.h"

namespace tavrin::bench {

namespace {

std::wstring ClassOf(HWND window) {
    wchar_t name[100];
    return {name, static_cast<std::size_t>(GetClassNameW(window, name, 100))};
}

/// Of a control that the component draws: the platform's nearest one.
TwinPlan::Part NativeFor(HWND window) {
    if (GetWindow(window, GW_CHILD) != nullptr)
        return {.className = PlainClass, .style = WS_CHILD | WS_CLIPCHILDREN};
    if (e2e::Window(window).Name().starts_with("Grid"))
        return {.className = WC_LISTVIEWW, .style = WS_CHILD | LVS_REPORT | LVS_OWNERDATA};
    return {.className = WC_BUTTONW, .style = WS_CHILD | BS_PUSHBUTTON};
}

TwinPlan::Part PartFor(HWND window) {
    constexpr DWORD state = WS_VISIBLE | WS_DISABLED;
    const auto style = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
    const std::wstring name = ClassOf(window);
    TwinPlan::Part part =
        name == L"Tavrin.Control" ? NativeFor(window) : TwinPlan::Part{.className = name, .style = style};
    part.style = (part.style & ~state) | (style & state);
    GetWindowRect(window, &part.place);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&part.place), 2);
    return part;
}

struct Collection {
    TwinPlan plan;
    std::vector<HWND> windows;
};

BOOL CALLBACK Collect(HWND window, LPARAM parameter) {
    auto& [plan, windows] = *reinterpret_cast<Collection*>(parameter);
    // What a control of the platform's consists of comes with it.
    if (e2e::Window(window).Name().empty()) return TRUE;
    TwinPlan::Part part = PartFor(window);
    const auto parent = std::ranges::find(windows, GetParent(window));
    part.parent = parent == windows.end() ? -1 : static_cast<int>(parent - windows.begin());
    plan.parts.push_back(std::move(part));
    windows.push_back(window);
    return TRUE;
}

}  // namespace

TwinPlan TwinPlan::Of(HWND window) {
    Collection collection;
    EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&collection));
    RECT place{};
    GetWindowRect(window, &place);
    collection.plan.size = {place.right - place.left, place.bottom - place.top};
    return std::move(collection.plan);
}

void TwinPlan::Save(const std::wstring& file) const {
    std::ofstream out(std::string(file.begin(), file.end()));
    out << size.cx << ' ' << size.cy << '\n';
    for (const Part& part : parts) {
        out << part.parent << ' ' << std::string(part.className.begin(), part.className.end()) << ' '
            << part.style << ' ' << part.place.left << ' ' << part.place.top << ' ' << part.place.right << ' '
            << part.place.bottom << '\n';
    }
}

TwinPlan TwinPlan::Load(const std::wstring& file) {
    std::ifstream in(std::string(file.begin(), file.end()));
    TwinPlan plan;
    in >> plan.size.cx >> plan.size.cy;
    Part part;
    std::string name;
    while (in >> part.parent >> name >> part.style >> part.place.left >> part.place.top >> part.place.right >>
           part.place.bottom) {
        part.className.assign(name.begin(), name.end());
        plan.parts.push_back(part);
    }
    if (plan.parts.empty()) throw std::runtime_error("no plan of a window");
    return plan;
}

TwinWindow::TwinWindow(const TwinPlan& plan)
    : window_(CreatePlainPopup(plan.size)),
      font_(CreateFontW(-12, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
                        CLEARTYPE_QUALITY, 0, L"Arial")) {
    LoadLibraryW(L"msftedit.dll");
    // The same version of the controls.
    const win32::ActivationContext context(GetModuleHandleW(L"Tavrin.dll"));
    const win32::ActivationContext::Scope scope(context);
    std::vector<HWND> made;
    for (const TwinPlan::Part& part : plan.parts) {
        const HWND parent = part.parent < 0 ? window_ : made[static_cast<std::size_t>(part.parent)];
        const RECT& place = part.place;
        made.push_back(CreateWindowExW(0, part.className.c_str(), L"Text", part.style, place.left, place.top,
                                       place.right - place.left, place.bottom - place.top, parent, nullptr,
                                       GetModuleHandleW(nullptr), nullptr));
        if (made.back() == nullptr) throw std::runtime_error("a control of the twin was not made");
        SendMessageW(made.back(), WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
    }
    ShowInFront(window_);
}

TwinWindow::~TwinWindow() {
    DestroyWindow(window_);
    UnregisterClassW(PlainClass, GetModuleHandleW(nullptr));
    DeleteObject(font_);
}

}  // namespace tavrin::bench
