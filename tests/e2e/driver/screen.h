#pragma once

#include <windows.h>

#include <string>

#include "e2e/driver/window.h"

namespace tavrin::e2e {

/// Whether any pixel of exactly that colour is to be seen inside the window's place on the screen.
bool ShowsColor(const Window& window, COLORREF color);

/// Saves the whole screen as `<name>.png` in the screenshot folder, which is made where there is none.
/// \return where it lies, as the system beneath Wine calls it; empty where no folder was set
std::string SaveScreenshot(const std::string& name);

/// Where screenshots go: a Windows path, empty for none. Set once, before the tests run.
void SetScreenshotFolder(std::wstring folder);

/// Where the display is a server of its own, as under Wine: waits for the display's answer to a question;
/// whatever it had to tell this thread before has come with it.
void AskDisplay();

}  // namespace tavrin::e2e
