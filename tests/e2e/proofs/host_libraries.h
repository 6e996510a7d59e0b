#pragma once

#include <windows.h>

#include "win32/base/handles.h"

namespace tavrin::e2e {

/// The system's libraries for controls and dialogs, which nearly every host has loaded for itself. Without
/// that they would come and go with the component, and Wine's lose bitmaps, brushes and fonts each time they
/// come anew.
class HostLibraries {
  public:
    /// The pictures of messages and pointers as well, of which the system keeps one each.
    HostLibraries() {
        for (const auto* icon : {IDI_ERROR, IDI_QUESTION, IDI_WARNING, IDI_INFORMATION, IDI_WINLOGO})
            LoadIconW(nullptr, icon);
        for (const auto* cursor : {IDC_ARROW, IDC_IBEAM, IDC_WAIT, IDC_CROSS, IDC_SIZEALL, IDC_SIZENS,
                                   IDC_SIZEWE, IDC_SIZENWSE, IDC_SIZENESW, IDC_HAND, IDC_NO, IDC_APPSTARTING})
            LoadCursorW(nullptr, cursor);
    }

  private:
    win32::OwnedModule controls_{LoadLibraryW(L"comctl32.dll")};
    win32::OwnedModule dialogs_{LoadLibraryW(L"comdlg32.dll")};
};

}  // namespace tavrin::e2e
