#pragma once

#include <windows.h>

#include <string>

namespace tavrin::win32 {

/// A part of a text, in code points as the model counts them.
struct TextRange {
    int start = 0;
    int length = 0;
    bool operator==(const TextRange&) const = default;
};

/// The text of a window, as UTF-8.
std::string ReadText(HWND window);
void WriteText(HWND window, const std::string& text);

/// The selection of the platform's edit field, whose own positions are UTF-16 units.
TextRange ReadSelection(HWND edit);
void WriteSelection(HWND edit, TextRange range);

}  // namespace tavrin::win32
