#include "win32/paint/dib_canvas.h"

#include <algorithm>
#include <new>

namespace tavrin::win32 {

namespace {

/// Sizes grow in steps, so that neighbouring sizes share a bitmap.
int RoundUp(int length) {
    constexpr int Step = 128;
    return std::max(1, (length + Step - 1) / Step) * Step;
}

BITMAPINFO Describe(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;  // from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

}  // namespace

DibCanvas::DibCanvas() : dc_(CreateCompatibleDC(nullptr)) {}

DibCanvas::~DibCanvas() {
    Release();
}

void DibCanvas::Reserve(int width, int height) {
    if (width <= width_ && height <= height_) return;
    const int newWidth = RoundUp(std::max(width, width_));
    const int newHeight = RoundUp(std::max(height, height_));
    const BITMAPINFO info = Describe(newWidth, newHeight);
    void* bits = nullptr;
    OwnedBitmap bitmap(CreateDIBSection(dc_.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (bitmap == nullptr) throw std::bad_alloc();
    Release();
    previous_ = SelectObject(dc_.get(), bitmap.get());
    bitmap_ = std::move(bitmap);
    bits_ = static_cast<std::uint32_t*>(bits);
    width_ = newWidth;
    height_ = newHeight;
}

void DibCanvas::Release() noexcept {
    if (previous_ != nullptr) SelectObject(dc_.get(), previous_);
    previous_ = nullptr;
}

}  // namespace tavrin::win32
