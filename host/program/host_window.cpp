#include "host/program/host_window.h"

#include <utility>

#include "data/error.h"
#include "host/program/form_finder.h"
#include "host/program/screen_scale.h"
#include "win32/base/text.h"

namespace tavrin::host {
namespace {

constexpr wchar_t ClassName[] = L"TavrinHost";
constexpr wchar_t Caption[] = L"Contabilitate";
constexpr int UtilitiesButton = 1;
constexpr UINT LeftMessage = WM_APP;
constexpr RECT WindowPlace{20, 40, 1160, 740};  // left, top, width, height at 96 DPI

void RegisterWindowClass(WNDPROC procedure) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    description.lpfnWndProc = procedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    description.lpszClassName = ClassName;
    RegisterClassExW(&description);
}

}  // namespace

HostWindow::HostWindow(const std::string& summary, std::function<void()> openUtilities)
    : openUtilities_(std::move(openUtilities)) {
    RegisterWindowClass(Procedure);
    CreateWindowExW(0, ClassName, Caption, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, Scaled(WindowPlace.left),
                    Scaled(WindowPlace.top), Scaled(WindowPlace.right), Scaled(WindowPlace.bottom), nullptr,
                    nullptr, GetModuleHandleW(nullptr), this);
    if (window_ == nullptr) throw data::Error(HRESULT_FROM_WIN32(GetLastError()), "the main window");
    AddChild(L"STATIC", win32::ToWide(summary).c_str(), {20, 20, 640, 24}, 0);
    AddChild(L"BUTTON", L"&Utilitare", {20, 60, 140, 32}, UtilitiesButton);
    ShowWindow(window_, SW_SHOW);
    UpdateWindow(window_);
}

HostWindow::~HostWindow() {
    if (window_ != nullptr) DestroyWindow(window_);
}

HWND HostWindow::AddChild(const wchar_t* kind, const wchar_t* text, RECT place, int id) {
    const HWND child = CreateWindowExW(0, kind, text, WS_CHILD | WS_VISIBLE | WS_TABSTOP, Scaled(place.left),
                                       Scaled(place.top), Scaled(place.right), Scaled(place.bottom), window_,
                                       reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                       GetModuleHandleW(nullptr), nullptr);
    SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    return child;
}

void HostWindow::TellLeft() const {
    PostMessageW(window_, LeftMessage, 0, 0);
}

LRESULT CALLBACK HostWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_NCCREATE) {
        auto* self = static_cast<HostWindow*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        self->window_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    auto* self = reinterpret_cast<HostWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self == nullptr) return DefWindowProcW(window, message, wParam, lParam);
    try {
        return self->Handle(message, wParam, lParam);
    } catch (const std::exception& error) {
        MessageBoxW(window, win32::ToWide(error.what()).c_str(), Caption, MB_ICONERROR | MB_OK);
        return 0;
    }
}

LRESULT HostWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
            OnCommand(LOWORD(wParam));
            return 0;
        case LeftMessage:
            OnLeft();
            return 0;
        case WM_CLOSE:
            OnClose();
            return 0;
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        case WM_NCDESTROY:
            SetWindowLongPtrW(std::exchange(window_, nullptr), GWLP_USERDATA, 0);
            return 0;
        default:
            return DefWindowProcW(window_, message, wParam, lParam);
    }
}

void HostWindow::OnCommand(int control) {
    if (control == UtilitiesButton) openUtilities_();
}

/// Closing the rate list tells the host too; it is the palette's going that ends the program.
void HostWindow::OnLeft() {
    if (FindForm("Utilitati") == nullptr) DestroyWindow(window_);
}

void HostWindow::OnClose() {
    const HWND palette = FindForm("Utilitati");
    if (palette != nullptr) {
        SendMessageW(palette, WM_CLOSE, 0, 0);
    } else {
        DestroyWindow(window_);
    }
}

void RunMessageLoop() {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

}  // namespace tavrin::host
