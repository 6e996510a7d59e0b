#include "e2e/driver/clipboard.h"

#include <cstring>

#include "e2e/driver/wait.h"
#include "win32/base/text.h"

namespace tavrin::e2e {

namespace {

class OpenClipboardScope {
  public:
    OpenClipboardScope() {
        Require("the clipboard", [] { return OpenClipboard(nullptr) != FALSE; });
    }
    ~OpenClipboardScope() { CloseClipboard(); }
    OpenClipboardScope(const OpenClipboardScope&) = delete;
    OpenClipboardScope& operator=(const OpenClipboardScope&) = delete;
};

}  // namespace

void PutOnClipboard(const std::string& text) {
    const std::wstring wide = win32::ToWide(text);
    const std::size_t bytes = (wide.size() + 1) * sizeof(wchar_t);
    const OpenClipboardScope scope;
    EmptyClipboard();
    // The system owns the memory once it has taken it.
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (memory == nullptr) throw DriverError("no memory for the clipboard");
    std::memcpy(GlobalLock(memory), wide.c_str(), bytes);
    GlobalUnlock(memory);
    if (SetClipboardData(CF_UNICODETEXT, memory) == nullptr) throw DriverError("the clipboard takes no text");
}

std::string TextOnClipboard() {
    const OpenClipboardScope scope;
    const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    if (memory == nullptr) return "no text";
    std::string text = win32::ToUtf8(static_cast<const wchar_t*>(GlobalLock(memory)));
    GlobalUnlock(memory);
    return text;
}

SIZE PictureOnClipboard() {
    const OpenClipboardScope scope;
    const HANDLE memory = GetClipboardData(CF_DIB);
    if (memory == nullptr) return {0, 0};
    const auto* header = static_cast<const BITMAPINFOHEADER*>(GlobalLock(memory));
    const SIZE size{header->biWidth, header->biHeight};
    GlobalUnlock(memory);
    return size;
}

}  // namespace tavrin::e2e
