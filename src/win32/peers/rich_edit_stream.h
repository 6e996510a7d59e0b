#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace tavrin::win32 {

// The platform's rich text control as a reader and writer of documents. `edit` is such a control.

/// Which character set a control writes a document in.
enum class RtfEncoding {
    Native,  ///< plain RTF, in its own way
    Utf8,    ///< `{\urtf`, each character as it is
};

/// Puts an RTF document in place of everything. False where the control could not read it to its end: it may
/// hold a part of it then.
bool StreamRtfIn(HWND edit, std::string_view rtf);

/// Puts an unformatted text in place of everything.
void StreamTextIn(HWND edit, std::wstring_view text);

/// \throws data::Error where the control fails
std::string StreamRtfOut(HWND edit, RtfEncoding encoding);

/// The text, paragraphs separated by "\r\n".
std::wstring ReadRichText(HWND edit);

}  // namespace tavrin::win32
