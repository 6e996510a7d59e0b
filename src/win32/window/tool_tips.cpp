#include "win32/window/tool_tips.h"

#include <commctrl.h>

#include "win32/base/text.h"
#include "win32/system/contrast.h"

namespace tavrin::win32 {

namespace {

TTTOOLINFOW Describe(HWND form, HWND control) {
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;  // accepted by every version of the common controls
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = form;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    return tool;
}

}  // namespace

void ToolTips::MakeWindow() {
    window_.reset(resources_.CreateWindowWith({.className = TOOLTIPS_CLASSW,
                                               .text = {},
                                               .style = WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                                               .extendedStyle = WS_EX_TOPMOST,
                                               .parent = form_}));
    ShowColors();
}

void ToolTips::ShowColors() {
    if (!window_) return;
    SendMessageW(window_.get(), TTM_SETTIPBKCOLOR, OnScreen(forms::ColorUse::Area, forms::scheme::Face), 0);
    SendMessageW(window_.get(), TTM_SETTIPTEXTCOLOR, OnScreen(forms::ColorUse::Text, forms::scheme::Text), 0);
}

void ToolTips::Set(HWND control, const std::string& text) {
    Remove(control);
    if (text.empty()) return;
    if (!window_) MakeWindow();
    TTTOOLINFOW tool = Describe(form_, control);
    std::wstring wide = ToWide(text);
    tool.lpszText = wide.data();
    SendMessageW(window_.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void ToolTips::Remove(HWND control) {
    if (!window_) return;
    TTTOOLINFOW tool = Describe(form_, control);
    SendMessageW(window_.get(), TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace tavrin::win32
