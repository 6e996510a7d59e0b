#pragma once

#include <windows.h>

#include "forms/model/form.h"

namespace tavrin::win32 {

/// What kind of platform window a form is. Forms stand above all others, as tools of the host: no button on
/// the task bar, and no owner.
struct FormStyle {
    DWORD style;
    DWORD extendedStyle;

    static FormStyle Of(forms::BorderStyle border) {
        const DWORD common = WS_POPUP | WS_CLIPCHILDREN;
        const DWORD extended = WS_EX_TOPMOST | WS_EX_TOOLWINDOW;
        // The system menu moves a window without a caption by the keyboard, too.
        if (border == forms::BorderStyle::Borderless) return {common | WS_SYSMENU, extended};
        const DWORD titled = common | WS_CAPTION | WS_SYSMENU;
        if (border == forms::BorderStyle::Sizable) return {titled | WS_THICKFRAME, extended};
        return {titled, extended | WS_EX_DLGMODALFRAME};
    }
};

}  // namespace tavrin::win32
