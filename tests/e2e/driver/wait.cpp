#include "e2e/driver/wait.h"

#include <windows.h>

namespace tavrin::e2e {

namespace {
constexpr DWORD PollInterval = 2;
}

bool WaitUntil(const std::function<bool()>& condition, unsigned long milliseconds) {
    const ULONGLONG deadline = GetTickCount64() + milliseconds;
    while (!condition()) {
        if (GetTickCount64() >= deadline) return false;
        Sleep(PollInterval);
    }
    return true;
}

void Require(const std::string& what, const std::function<bool()>& condition) {
    if (!WaitUntil(condition)) throw DriverError("waited in vain: " + what);
}

}  // namespace tavrin::e2e
