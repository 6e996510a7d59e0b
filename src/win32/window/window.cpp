#include "win32/window/window.h"

#include <commctrl.h>

#include "forms/model/form.h"

namespace tavrin::win32 {

namespace {
constexpr UINT_PTR SubclassId = 1;
}

Window::~Window() {
    Destroy();
}

void Window::Destroy() noexcept {
    const HWND handle = handle_;
    if (handle == nullptr) return;
    Detach();
    DestroyWindow(handle);
}

void Window::Attach(HWND handle, std::string_view name) {
    handle_ = handle;
    SetWindowSubclass(handle, &Window::Procedure, SubclassId, reinterpret_cast<DWORD_PTR>(this));
    if (!name.empty()) name_.emplace(handle, name);
}

void Window::Detach() noexcept {
    name_.reset();
    RemoveWindowSubclass(handle_, &Window::Procedure, SubclassId);
    handle_ = nullptr;
}

LRESULT Window::CallDefault(const Message& message) const {
    return handle_ != nullptr ? DefSubclassProc(handle_, message.id, message.wParam, message.lParam) : 0;
}

LRESULT CALLBACK Window::Procedure(HWND, UINT id, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                   DWORD_PTR self) noexcept {
    auto& window = *reinterpret_cast<Window*>(self);
    LRESULT result = 0;
    // The window may be gone when the dispatch has ended.
    window.desktop_.Guard([&] { result = window.Dispatch({id, wParam, lParam}); });
    return result;
}

LRESULT Window::Dispatch(const Message& message) {
    if (message.id != WM_NCDESTROY) return HandleMessage(message);
    const HWND handle = handle_;
    Detach();
    return DefSubclassProc(handle, message.id, message.wParam, message.lParam);
}

HWND WindowOf(const forms::Form& form) {
    const auto* peer = dynamic_cast<const Window*>(form.Peer());
    return peer != nullptr ? peer->Handle() : nullptr;
}

}  // namespace tavrin::win32
