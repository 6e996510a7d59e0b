#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

namespace tavrin::host {

/// The whole screen, to be read from.
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

/// What stood in a part of the screen: 0x00RRGGBB a pixel, rows from the top.
struct ScreenPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
    bool operator==(const ScreenPicture&) const = default;
};

/// \param place in pixels of the screen; an empty one gives an empty picture
ScreenPicture CaptureScreen(const RECT& place);

}  // namespace tavrin::host
