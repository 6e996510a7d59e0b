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

using OwnedFont = std::unique_ptr<std::remove_pointer_t<HFONT>, DeleteGdiObject>;
using OwnedBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteGdiObject>;
using OwnedRegion = std::unique_ptr<std::remove_pointer_t<HRGN>, DeleteGdiObject>;
using OwnedMemoryDc = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteMemoryDc>;
using OwnedModule = std::unique_ptr<std::remove_pointer_t<HMODULE>, FreeModule>;

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
