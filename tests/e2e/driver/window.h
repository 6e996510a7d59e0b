#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace tavrin::e2e {

/// A window or control of the program under test, as another program sees it: found by its window property
/// `Tavrin.Name`. A plain value that does not keep the window alive.
class Window {
  public:
    Window() = default;
    explicit Window(HWND handle) : handle_(handle) {}

    HWND Handle() const { return handle_; }
    std::string Name() const;  ///< `Tavrin.Name`, empty without one
    std::string Text() const;
    std::string ClassName() const;

    bool Exists() const { return IsWindow(handle_); }
    bool IsVisible() const { return IsWindowVisible(handle_); }
    bool IsEnabled() const { return IsWindowEnabled(handle_); }
    bool IsTopmost() const;
    /// Whether keys go to this window or to one inside it.
    bool HasFocus() const;
    RECT ScreenBounds() const;  ///< pixels
    POINT Center() const;       ///< pixels of the screen
    int Width() const;
    int Height() const;

    /// The control of that name, for instance `cmdAction(2)`. \throws DriverError when there is none.
    Window Control(const std::string& name) const;
    std::optional<Window> FindControl(const std::string& name) const;
    std::vector<Window> Controls() const;  ///< all named ones, those in frames too

    bool operator==(const Window&) const = default;

  private:
    HWND handle_ = nullptr;
};

/// The visible windows of this process from front to back.
std::vector<Window> TopLevelWindows();

/// The named windows among them.
std::vector<Window> OpenForms();
std::optional<Window> FindForm(const std::string& name);

/// Waits for a window of that name. \throws DriverError when it does not appear.
Window AwaitForm(const std::string& name);

/// Waits until no window of that name is left. \return whether it went.
bool AwaitClosed(const std::string& name);

/// The control that has the keyboard, as the name of it or of the nearest named window around it.
std::string FocusedName();

/// Waits until that control has the keyboard. \return whether it did.
bool AwaitFocus(const std::string& name);

}  // namespace tavrin::e2e
