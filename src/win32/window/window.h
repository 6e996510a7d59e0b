#pragma once

#include <windows.h>

#include <optional>
#include <span>
#include <string_view>

#include "forms/model/desktop.h"
#include "win32/window/name_property.h"

namespace tavrin::win32 {

struct Message {
    UINT id = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
};

/// Added to the number of a message that a control's parent was sent about the control, and passes on to it.
inline constexpr UINT Reflected = WM_APP;

/// One line of a window's table of messages.
template <class Receiver>
struct Route {
    UINT message;
    LRESULT (Receiver::*handle)(const Message&);
};

/// Owns a platform window and hands its messages to HandleMessage, each as one dispatch of the desktop:
/// nothing is thrown through the platform, and a form that a handler unloads lives until the handler has
/// ended. The window may be one of ours or a control of the platform's own. The object is found by the
/// window's own word for its program: the platform's helper for subclassing asks for a property at every
/// message.
class Window {
  public:
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    /// Null before Attach, and once the window has been destroyed.
    HWND Handle() const { return handle_; }

  protected:
    explicit Window(forms::Desktop& desktop) : desktop_(desktop) {}

    /// Takes a new window over. `name` is its `Tavrin.Name`, empty for a window without one.
    void Attach(HWND handle, std::string_view name);

    virtual LRESULT HandleMessage(const Message& message) = 0;

    /// Destroys the window now rather than with the object. The last messages are the platform's alone.
    void Destroy() noexcept;

    /// Leaves the window to others. It has no messages for this object any more.
    void Detach() noexcept;

    /// What the platform makes of a message.
    LRESULT CallDefault(const Message& message) const;

    /// The answer of a table's handler, nothing where the table has none.
    template <class Receiver>
    static std::optional<LRESULT> HandleBy(std::span<const Route<Receiver>> routes, Receiver& receiver,
                                           const Message& message) {
        for (const Route<Receiver>& route : routes) {
            if (route.message == message.id) return (receiver.*route.handle)(message);
        }
        return std::nullopt;
    }

  private:
    static LRESULT CALLBACK Procedure(HWND handle, UINT id, WPARAM wParam, LPARAM lParam) noexcept;
    LRESULT Dispatch(const Message& message);

    forms::Desktop& desktop_;
    HWND handle_ = nullptr;
    WNDPROC previous_ = nullptr;
    std::optional<NameProperty> name_;
};

/// A form's window, null while it has none.
HWND WindowOf(const forms::Form& form);

}  // namespace tavrin::win32
