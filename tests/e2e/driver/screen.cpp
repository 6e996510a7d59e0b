#include "e2e/driver/screen.h"

#include <algorithm>
#include <cstdint>
#include <exception>
#include <string_view>
#include <utility>

#include "e2e/driver/platform.h"
#include "host/pictures/png.h"
#include "host/pictures/screen_picture.h"
#include "win32/base/library.h"
#include "win32/base/text.h"

namespace tavrin::e2e {

namespace {

std::wstring screenshotFolder;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

/// A name of a test may hold what a file's may not.
std::wstring FileName(std::string name) {
    std::ranges::replace_if(
        name, [](char each) { return std::string_view("\\/:*?\"<>|").find(each) != std::string_view::npos; },
        '-');
    return win32::ToWide(name);
}

/// As the system beneath calls it, where there is one.
std::string NativePath(const std::wstring& path) {
    const win32::SystemFunction<char * CDECL(const wchar_t*)> convert(L"kernel32.dll",
                                                                      "wine_get_unix_file_name");
    char* const native = convert ? convert(path.c_str()) : nullptr;
    if (native == nullptr) return win32::ToUtf8(path);
    std::string text = native;
    HeapFree(GetProcessHeap(), 0, native);
    return text;
}

std::uint32_t AsPixel(COLORREF color) {
    return static_cast<std::uint32_t>(GetRValue(color)) << 16 |
           static_cast<std::uint32_t>(GetGValue(color)) << 8 | GetBValue(color);
}

}  // namespace

bool ShowsColor(const Window& window, COLORREF color) {
    const host::ScreenPicture picture = host::CaptureScreen(window.ScreenBounds());
    return std::ranges::find(picture.pixels, AsPixel(color)) != picture.pixels.end();
}

void SetScreenshotFolder(std::wstring folder) {
    screenshotFolder = std::move(folder);
}

std::string SaveScreenshot(const std::string& name) try {
    if (screenshotFolder.empty()) return {};
    CreateDirectoryW(screenshotFolder.c_str(), nullptr);
    const std::wstring path = screenshotFolder + L"\\" + FileName(name) + L".png";
    const RECT screen{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    host::SavePng(host::CaptureScreen(screen), path);
    return NativePath(path);
} catch (const std::exception& error) {
    return std::string("none, ") + error.what();
}

void AskDisplay() {
    if (!IsWine()) return;
    const host::ScreenDc screen;
    GetPixel(screen.Get(), 0, 0);
}

}  // namespace tavrin::e2e
