#include "win32/peers/edit_text.h"

#include <algorithm>

#include "win32/base/text.h"

namespace tavrin::win32 {

namespace {

std::wstring ReadWide(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
    const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

/// How many characters the first `units` units of a text hold.
int CountCharacters(const std::wstring& text, DWORD units) {
    const auto end = text.begin() + std::min<std::ptrdiff_t>(static_cast<std::ptrdiff_t>(units),
                                                             static_cast<std::ptrdiff_t>(text.size()));
    return static_cast<int>(
        std::count_if(text.begin(), end, [](wchar_t unit) { return !IS_LOW_SURROGATE(unit); }));
}

/// Where the character of that index begins.
int UnitsBefore(const std::wstring& text, int characters) {
    int units = 0;
    const int size = static_cast<int>(text.size());
    for (; characters > 0 && units < size; --characters)
        units += units + 1 < size && IS_HIGH_SURROGATE(text[static_cast<std::size_t>(units)]) ? 2 : 1;
    return units;
}

}  // namespace

std::string ReadText(HWND window) {
    return ToUtf8(ReadWide(window));
}

void WriteText(HWND window, const std::string& text) {
    SetWindowTextW(window, ToWide(text).c_str());
}

TextRange ReadSelection(HWND edit) {
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    const std::wstring text = ReadWide(edit);
    const int first = CountCharacters(text, start);
    return {first, CountCharacters(text, end) - first};
}

void WriteSelection(HWND edit, TextRange range) {
    const std::wstring text = ReadWide(edit);
    SendMessageW(edit, EM_SETSEL, static_cast<WPARAM>(UnitsBefore(text, range.start)),
                 UnitsBefore(text, range.start + range.length));
}

}  // namespace tavrin::win32
