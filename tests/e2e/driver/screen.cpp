#include "e2e/driver/screen.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <vector>

#include "win32/handles.h"
#include "win32/text.h"

namespace tavrin::e2e {

namespace {

std::wstring screenshotFolder;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

/// What stands in a rectangle of the screen, as 32-bit pixels from the bottom row up.
struct Picture {
    BITMAPINFOHEADER header{};
    std::vector<std::uint32_t> pixels;
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

Picture Capture(const RECT& place) {
    Picture picture;
    const int width = static_cast<int>(place.right - place.left);
    const int height = static_cast<int>(place.bottom - place.top);
    if (width <= 0 || height <= 0) return picture;
    const ScreenDc screen;
    const win32::OwnedMemoryDc memory(CreateCompatibleDC(screen.Get()));
    const win32::OwnedBitmap bitmap(CreateCompatibleBitmap(screen.Get(), width, height));
    {
        const win32::SelectScope selected(memory.get(), bitmap.get());
        BitBlt(memory.get(), 0, 0, width, height, screen.Get(), place.left, place.top, SRCCOPY);
    }
    picture.header.biSize = sizeof picture.header;
    picture.header.biWidth = width;
    picture.header.biHeight = height;
    picture.header.biPlanes = 1;
    picture.header.biBitCount = 32;
    picture.pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    BITMAPINFO info{};
    info.bmiHeader = picture.header;
    GetDIBits(memory.get(), bitmap.get(), 0, static_cast<UINT>(height), picture.pixels.data(), &info,
              DIB_RGB_COLORS);
    return picture;
}

std::uint32_t AsPixel(COLORREF color) {
    return static_cast<std::uint32_t>(GetRValue(color)) << 16 |
           static_cast<std::uint32_t>(GetGValue(color)) << 8 | GetBValue(color);
}

}  // namespace

bool ShowsColor(const Window& window, COLORREF color) {
    const Picture picture = Capture(window.ScreenBounds());
    return std::ranges::any_of(picture.pixels, [wanted = AsPixel(color)](std::uint32_t pixel) {
        return (pixel & 0xFFFFFF) == wanted;
    });
}

void SetScreenshotFolder(std::wstring folder) {
    screenshotFolder = std::move(folder);
}

void SaveScreenshot(const std::string& name) {
    if (screenshotFolder.empty()) return;
    const Picture picture = Capture({0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
    const auto size = static_cast<DWORD>(picture.pixels.size() * sizeof(std::uint32_t));
    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42;  // "BM"
    file.bfOffBits = sizeof file + sizeof picture.header;
    file.bfSize = file.bfOffBits + size;
    std::ofstream stream(win32::ToUtf8(screenshotFolder) + "\\" + name + ".bmp", std::ios::binary);
    stream.write(reinterpret_cast<const char*>(&file), sizeof file);
    stream.write(reinterpret_cast<const char*>(&picture.header), sizeof picture.header);
    stream.write(reinterpret_cast<const char*>(picture.pixels.data()), static_cast<std::streamsize>(size));
}

void AskDisplay() {
    const ScreenDc screen;
    GetPixel(screen.Get(), 0, 0);
}

}  // namespace tavrin::e2e
