#pragma once

#include <windows.h>

#include <cstdint>
#include <span>

#include "win32/base/handles.h"

namespace tavrin::win32 {

/// The memory that windows are drawn in before they are shown: one 32-bit bitmap for all of them, kept and
/// grown as needed. Pixels are 0x00RRGGBB, rows from the top.
class DibCanvas {
  public:
    DibCanvas();
    ~DibCanvas();
    DibCanvas(const DibCanvas&) = delete;
    DibCanvas& operator=(const DibCanvas&) = delete;

    /// Makes room for a window of that many pixels. \throws std::bad_alloc
    void Reserve(int width, int height);

    HDC Dc() const { return dc_.get(); }

    /// A row's pixels. What GDI was asked to draw must have been flushed (GdiFlush) before.
    std::span<std::uint32_t> Row(int y) {
        return {bits_ + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_),
                static_cast<std::size_t>(width_)};
    }

  private:
    void Release() noexcept;

    OwnedMemoryDc dc_;
    OwnedBitmap bitmap_;
    HGDIOBJ previous_ = nullptr;
    std::uint32_t* bits_ = nullptr;
    int width_ = 0;
    int height_ = 0;
};

}  // namespace tavrin::win32
