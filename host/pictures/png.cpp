#include "host/pictures/png.h"

#include <objidl.h>

#include <algorithm>

// GDI+ calls the macros that NOMINMAX takes away.
namespace Gdiplus {  // NOLINT(readability-identifier-naming)
using std::max;
using std::min;
}  // namespace Gdiplus

#include <gdiplus.h>

#include "data/error.h"
#include "win32/base/text.h"

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

}  // namespace

void SavePng(ScreenPicture picture, const std::wstring& path) {
    const GdiPlus library;
    constexpr int BytesOfPixel = 4;
    Gdiplus::Bitmap bitmap(picture.width, picture.height, picture.width * BytesOfPixel, PixelFormat32bppRGB,
                           reinterpret_cast<BYTE*>(picture.pixels.data()));
    if (bitmap.Save(path.c_str(), &PngEncoder, nullptr) != Gdiplus::Ok)
        throw data::Error(E_FAIL, "cannot save " + win32::ToUtf8(path));
}

}  // namespace tavrin::host
