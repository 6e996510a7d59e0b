#include "win32/desktop/clipboard.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "win32/base/system_error.h"
#include "win32/base/text.h"
#include "win32/paint/dib_surface.h"

namespace tavrin::win32 {

namespace {

OwnedGlobal Allocate(std::size_t size) {
    OwnedGlobal memory(GlobalAlloc(GMEM_MOVEABLE, size));
    if (!memory) throw std::bad_alloc();
    return memory;
}

/// Memory of the clipboard's kind while it is filled.
class Locked {
  public:
    explicit Locked(const OwnedGlobal& memory)
        : memory_(memory.get()), start_(static_cast<std::byte*>(GlobalLock(memory_))) {}
    ~Locked() { GlobalUnlock(memory_); }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;

    void Write(std::size_t at, const void* from, std::size_t size) const {
        std::memcpy(start_ + at, from, size);
    }

  private:
    HGLOBAL memory_;
    std::byte* start_;
};

BITMAPINFOHEADER HeaderOf(int width, int height) {
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = width;
    header.biHeight = height;  // rows from the bottom, which every program reads
    header.biPlanes = 1;
    header.biBitCount = 32;
    header.biCompression = BI_RGB;
    return header;
}

}  // namespace

Clipboard::Clipboard(HWND owner) {
    if (OpenClipboard(owner) == FALSE) ThrowLastError();
    EmptyClipboard();
}

void Clipboard::Put(UINT format, OwnedGlobal memory) const {
    if (SetClipboardData(format, memory.get()) == nullptr) ThrowLastError();
    static_cast<void>(memory.release());  // the clipboard's now
}

OwnedGlobal TextMemory(const std::string& text) {
    const std::wstring wide = ToWide(text);
    const std::size_t size = (wide.size() + 1) * sizeof(wchar_t);
    OwnedGlobal memory = Allocate(size);
    Locked(memory).Write(0, wide.c_str(), size);
    return memory;
}

OwnedGlobal PictureMemory(const forms::Copied& copied, DibCanvas& canvas, FontCache& fonts, Scale scale) {
    const int width = std::max(1, scale.ToPixels(copied.pictureSize.width));
    const int height = std::max(1, scale.ToPixels(copied.pictureSize.height));
    canvas.Reserve(width, height);
    {
        DibSurface surface(canvas, fonts, scale, {}, {0, 0, width, height});
        copied.drawPicture(surface);
    }
    GdiFlush();
    const BITMAPINFOHEADER header = HeaderOf(width, height);
    const std::size_t row = static_cast<std::size_t>(width) * sizeof(std::uint32_t);
    OwnedGlobal memory = Allocate(sizeof header + row * static_cast<std::size_t>(height));
    const Locked locked(memory);
    locked.Write(0, &header, sizeof header);
    for (int y = 0; y < height; ++y) {
        locked.Write(sizeof header + row * static_cast<std::size_t>(height - 1 - y), canvas.Row(y).data(),
                     row);
    }
    return memory;
}

}  // namespace tavrin::win32
