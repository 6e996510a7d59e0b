#include "win32/window/window.h"

#include "forms/model/form.h"

namespace tavrin::win32 {

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
    SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    previous_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Window::Procedure)));
    if (!name.empty()) name_.emplace(handle, name);
}

void Window::Detach() noexcept {
    name_.reset();
    SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
    // Somebody who has come on top goes on calling Procedure.
    if (GetWindowLongPtrW(handle_, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&Window::Procedure))
        SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(previous_));
    handle_ = nullptr;
}

LRESULT Window::CallDefault(const Message& message) const {
    return handle_ != nullptr
               ? CallWindowProcW(previous_, handle_, message.id, message.wParam, message.lParam)
               : 0;
}

LRESULT CALLBACK Window::Procedure(HWND handle, UINT id, WPARAM wParam, LPARAM lParam) noexcept {
    auto* const window = reinterpret_cast<Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
    if (window == nullptr) {
        const auto own = reinterpret_cast<WNDPROC>(GetClassLongPtrW(handle, GCLP_WNDPROC));
        return CallWindowProcW(own, handle, id, wParam, lParam);
    }
    LRESULT result = 0;
    // The window may be gone when the dispatch has ended.
    window->desktop_.Guard([&] { result = window->Dispatch({id, wParam, lParam}); });
    return result;
}

LRESULT Window::Dispatch(const Message& message) {
    if (message.id != WM_NCDESTROY) return HandleMessage(message);
    const HWND handle = handle_;
    Detach();
    return CallWindowProcW(previous_, handle, message.id, message.wParam, message.lParam);
}

HWND WindowOf(const forms::Form& form) {
    const auto* peer = dynamic_cast<const Window*>(form.Peer());
    return peer != nullptr ? peer->Handle() : nullptr;
}

}  // namespace tavrin::win32
