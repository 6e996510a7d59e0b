#include "host/program/png.h"

#include <objidl.h>

#include <algorithm>

// GDI+ calls the macros that NOMINMAX takes away.
namespace Gdiplus {  // NOLINT(readability-identifier-naming)
using std::max;
using std::min;
}  // namespace Gdiplus

#include <gdiplus.h>

#include "data/error.h"
#include "win32/handles.h"
#include "win32/text.h"

namespace tavrin::host {
namespace {

constexpr CLSID PngEncoder = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

class GdiPlus {
  public:
    GdiPlus() {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&token_, &input, nullptr);
    }
    ~GdiPlus() { Gdiplus::GdiplusShutdown(token_); }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;

  private:
    ULONG_PTR token_ = 0;
};

class ScreenDc {
  public:
    ScreenDc() : dc_(GetDC(nullptr)) {}
    ~ScreenDc() { ReleaseDC(nullptr, dc_); }
    ScreenDc(const ScreenDc&) = delete;
    ScreenDc& operator=(const ScreenDc&) = delete;
    HDC Get() const { return dc_; }

  private:
    HDC dc_;
};

win32::OwnedBitmap Capture(const RECT& place) {
    const ScreenDc screen;
    const win32::OwnedMemoryDc memory(CreateCompatibleDC(screen.Get()));
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    win32::OwnedBitmap bitmap(CreateCompatibleBitmap(screen.Get(), width, height));
    const win32::SelectScope selected(memory.get(), bitmap.get());
    BitBlt(memory.get(), 0, 0, width, height, screen.Get(), place.left, place.top, SRCCOPY);
    return bitmap;
}

}  // namespace

void SavePng(const RECT& place, const std::wstring& path) {
    const win32::OwnedBitmap bitmap = Capture(place);
    const GdiPlus library;
    Gdiplus::Bitmap picture(bitmap.get(), nullptr);
    if (picture.Save(path.c_str(), &PngEncoder, nullptr) != Gdiplus::Ok)
        throw data::Error(E_FAIL, "cannot save " + win32::ToUtf8(path));
}

}  // namespace tavrin::host
