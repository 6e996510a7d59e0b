#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace tavrin::win32 {

struct DeleteGdiObject {
    void operator()(HGDIOBJ object) const { DeleteObject(object); }
};
struct DeleteMemoryDc {
    void operator()(HDC dc) const { DeleteDC(dc); }
};
struct FreeModule {
    void operator()(HMODULE module) const { FreeLibrary(module); }
};

struct DestroyPlatformWindow {
    void operator()(HWND window) const { DestroyWindow(window); }
};
struct CloseKernelHandle {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
struct FreeGlobalMemory {
    void operator()(HGLOBAL memory) const { GlobalFree(memory); }
};
struct CloseRegistryKey {
    void operator()(HKEY key) const { RegCloseKey(key); }
};

using OwnedWindow = std::unique_ptr<std::remove_pointer_t<HWND>, DestroyPlatformWindow>;
/// A file, an event, a process and the like; null for none.
using OwnedHandle = std::unique_ptr<HANDLE, CloseKernelHandle>;
using OwnedGlobal = std::unique_ptr<std::remove_pointer_t<HGLOBAL>, FreeGlobalMemory>;
using OwnedKey = std::unique_ptr<std::remove_pointer_t<HKEY>, CloseRegistryKey>;
using OwnedFont = std::unique_ptr<std::remove_pointer_t<HFONT>, DeleteGdiObject>;
using OwnedBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteGdiObject>;
using OwnedRegion = std::unique_ptr<std::remove_pointer_t<HRGN>, DeleteGdiObject>;
using OwnedMemoryDc = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteMemoryDc>;
using OwnedModule = std::unique_ptr<std::remove_pointer_t<HMODULE>, FreeModule>;

/// What CreateFile answers, which says "none" with a handle of its own.
inline OwnedHandle OwnFile(HANDLE file) {
    return OwnedHandle(file != INVALID_HANDLE_VALUE ? file : nullptr);
}

/// The device context of a whole window with its frame, or of the screen, for a scope.
class WindowDc {
  public:
    /// \param window null for the screen
    explicit WindowDc(HWND window) : window_(window), dc_(GetWindowDC(window)) {}
    ~WindowDc() { ReleaseDC(window_, dc_); }
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;

    HDC Get() const { return dc_; }

  private:
    HWND window_;
    HDC dc_;
};

/// Keeps an object selected into a device context for a scope.
class SelectScope {
  public:
    SelectScope(HDC dc, HGDIOBJ object) : dc_(dc), previous_(SelectObject(dc, object)) {}
    ~SelectScope() { SelectObject(dc_, previous_); }
    SelectScope(const SelectScope&) = delete;
    SelectScope& operator=(const SelectScope&) = delete;

  private:
    HDC dc_;
    HGDIOBJ previous_;
};

}  // namespace tavrin::win32
