#include "host/pictures/screen_picture.h"

#include "win32/base/handles.h"

namespace tavrin::host {
namespace {

constexpr std::uint32_t ColorBits = 0xFFFFFF;

win32::OwnedBitmap Copy(HDC screen, HDC memory, const RECT& place) {
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    win32::OwnedBitmap bitmap(CreateCompatibleBitmap(screen, width, height));
    const win32::SelectScope selected(memory, bitmap.get());
    BitBlt(memory, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
    return bitmap;
}

BITMAPINFO RowsFromTop(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    return info;
}

}  // namespace

ScreenPicture CaptureScreen(const RECT& place) {
    if (place.right <= place.left || place.bottom <= place.top) return {};
    ScreenPicture picture{place.right - place.left, place.bottom - place.top, {}};
    picture.pixels.resize(static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height));
    const ScreenDc screen;
    const win32::OwnedMemoryDc memory(CreateCompatibleDC(screen.Get()));
    const win32::OwnedBitmap bitmap = Copy(screen.Get(), memory.get(), place);
    BITMAPINFO info = RowsFromTop(picture.width, picture.height);
    GetDIBits(memory.get(), bitmap.get(), 0, static_cast<UINT>(picture.height), picture.pixels.data(), &info,
              DIB_RGB_COLORS);
    for (std::uint32_t& pixel : picture.pixels)
        pixel &= ColorBits;
    return picture;
}

}  // namespace tavrin::host
