#include "win32/peers/rich_edit_stream.h"

#include <richedit.h>

#include <algorithm>
#include <cstring>

#include "win32/base/system_error.h"
#include "win32/base/translation.h"

namespace tavrin::win32 {

namespace {

constexpr UINT Unicode = 1200;
constexpr UINT WriteUtf8 = SF_USECODEPAGE | (static_cast<UINT>(CP_UTF8) << 16);

DWORD CALLBACK Give(DWORD_PTR cookie, LPBYTE buffer, LONG size, LONG* given) noexcept {
    auto& rest = *reinterpret_cast<std::string_view*>(cookie);
    const std::size_t count = std::min(rest.size(), static_cast<std::size_t>(size));
    std::memcpy(buffer, rest.data(), count);
    rest.remove_prefix(count);
    *given = static_cast<LONG>(count);
    return 0;
}

DWORD CALLBACK Take(DWORD_PTR cookie, LPBYTE buffer, LONG size, LONG* taken) noexcept {
    *taken = 0;
    const HRESULT result = Translated([&] {
        auto& document = *reinterpret_cast<std::string*>(cookie);
        document.append(reinterpret_cast<const char*>(buffer), static_cast<std::size_t>(size));
        *taken = size;
        return S_OK;
    });
    return static_cast<DWORD>(result);
}

bool StreamIn(HWND edit, UINT format, std::string_view bytes) {
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&bytes), 0, Give};
    SendMessageW(edit, EM_STREAMIN, format, reinterpret_cast<LPARAM>(&stream));
    return stream.dwError == 0;
}

/// About as many bytes as the control writes of so much text. It writes them in some hundred pieces, and what
/// must grow for them is copied as it grows.
std::size_t ExpectedRtf(HWND edit) {
    GETTEXTLENGTHEX measure{GTL_DEFAULT, Unicode};
    const LRESULT length = SendMessageW(edit, EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&measure), 0);
    return static_cast<std::size_t>(std::max<LRESULT>(length, 0)) * 5 / 4 + 1024;
}

}  // namespace

bool StreamRtfIn(HWND edit, std::string_view rtf) {
    return StreamIn(edit, SF_RTF, rtf);
}

void StreamTextIn(HWND edit, std::wstring_view text) {
    StreamIn(edit, SF_TEXT | SF_UNICODE,
             {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)});
}

std::string StreamRtfOut(HWND edit, RtfEncoding encoding) {
    std::string document;
    document.reserve(ExpectedRtf(edit));
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&document), 0, Take};
    const UINT format = encoding == RtfEncoding::Utf8 ? SF_RTF | WriteUtf8 : UINT{SF_RTF};
    SendMessageW(edit, EM_STREAMOUT, format, reinterpret_cast<LPARAM>(&stream));
    if (stream.dwError != 0) ThrowSystemError(static_cast<HRESULT>(stream.dwError));
    // Some versions end the document as they end a text in memory.
    while (document.ends_with('\0'))
        document.pop_back();
    return document;
}

std::wstring ReadRichText(HWND edit) {
    GETTEXTLENGTHEX measure{GTL_USECRLF | GTL_PRECISE | GTL_NUMCHARS, Unicode};
    const LRESULT length = SendMessageW(edit, EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&measure), 0);
    if (length <= 0) return {};
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    GETTEXTEX request{static_cast<DWORD>(text.size() * sizeof(wchar_t)), GT_USECRLF, Unicode, nullptr,
                      nullptr};
    const LRESULT read = SendMessageW(edit, EM_GETTEXTEX, reinterpret_cast<WPARAM>(&request),
                                      reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(std::max<LRESULT>(read, 0)));
    return text;
}

}  // namespace tavrin::win32
