#include "verify/preconditions.h"

#include <windows.h>

#include "verify/kit_files.h"

namespace tavrin::verify {

namespace {

constexpr int WantedWidth = 1280;
constexpr int WantedHeight = 1024;
constexpr int WantedDpi = 96;

bool IsComponentRegistered() {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, L"Tavrin.Utile", 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
    RegCloseKey(key);
    return true;
}

bool IsDesktopForInput() {
    const HDESK desktop = OpenInputDesktop(0, FALSE, DESKTOP_READOBJECTS);
    if (desktop == nullptr) return false;
    CloseDesktop(desktop);
    return true;
}

bool IsFolderWritable() {
    constexpr const wchar_t* Probe = L"probe.tmp";
    const bool isWritten = WriteKitFile(Probe, "x");
    DeleteFileW(Probe);
    return isWritten;
}

/// Larger than what this program is told by the system, which then stretches its windows.
bool IsStretched() {
    const HDC screen = GetDC(nullptr);
    const bool isStretched = GetDeviceCaps(screen, DESKTOPHORZRES) != GetDeviceCaps(screen, HORZRES);
    const bool isOther = GetDeviceCaps(screen, LOGPIXELSX) != WantedDpi;
    ReleaseDC(nullptr, screen);
    return isStretched || isOther;
}

}  // namespace

std::vector<std::string> FindObstacles() {
    std::vector<std::string> obstacles;
    if (!IsFolderWritable())
        obstacles.emplace_back("This folder takes no files: unpack the kit into another.");
    if (!IsDesktopForInput()) {
        obstacles.emplace_back(
            "There is no desktop that takes input here: a user must be logged on, with the screen unlocked.");
    }
    if (IsComponentRegistered()) {
        obstacles.emplace_back(
            "Tavrin is registered on this machine, and the tests would take that away: remove it first, or "
            "take "
            "another machine.");
    }
    return obstacles;
}

std::vector<std::string> FindDisturbances() {
    std::vector<std::string> disturbances;
    if (GetSystemMetrics(SM_CXSCREEN) < WantedWidth || GetSystemMetrics(SM_CYSCREEN) < WantedHeight) {
        disturbances.push_back("The screen is smaller than " + std::to_string(WantedWidth) + " by " +
                               std::to_string(WantedHeight) + ": windows may cover each other.");
    }
    if (IsStretched()) disturbances.emplace_back("The display is scaled: 100 % is what the tests know.");
    if (GetSystemMetrics(SM_CMONITORS) > 1)
        disturbances.emplace_back("There are several displays: the tests know one.");
    if ((GetKeyState(VK_CAPITAL) & 1) != 0) disturbances.emplace_back("Caps Lock is on: switch it off.");
    if (GetSystemMetrics(SM_SWAPBUTTON) != 0) disturbances.emplace_back("The mouse's buttons are swapped.");
    return disturbances;
}

}  // namespace tavrin::verify
