#include "host/program/tour.h"

#include <windows.h>

#include <array>
#include <cstdio>
#include <vector>

#include "data/error.h"
#include "host/program/form_finder.h"
#include "host/program/png.h"
#include "win32/text.h"

namespace tavrin::host {
namespace {

constexpr ULONGLONG PatienceMilliseconds = 20000;
constexpr DWORD QuietMilliseconds = 300;

struct Click {
    const char* form;
    const char* control;
};

/// One picture: what to click before it, and which window it shows.
struct Step {
    const char* picture;
    std::vector<Click> clicks;
    const char* form;
};

const std::vector<Step>& Steps() {
    static const std::vector<Step> steps{
        {"palette", {}, "Utilitati"},
        {"palette-rolled-up", {{"Utilitati", "imgRollup(0)"}}, "Utilitati"},
        {"rate-list", {{"Utilitati", "imgRollup(1)"}, {"Utilitati", "cmdAction(3)"}}, "CursValutar"},
        {"rate-entry", {{"CursValutar", "cmdAction(0)"}}, "CursValutarDetaliu"},
        {"add-currency",
         {{"CursValutarDetaliu", "cmdAction(1)"}, {"CursValutar", "cmdAction(3)"}},
         "CereMoneda"},
        {"evolution",
         {{"CereMoneda", "cmdAction(1)"}, {"CursValutar", "cmdAction(5)"}, {"EvolutieCurs", "cmdAction(1)"}},
         "EvolutieCurs"},
        {"address-book", {{"Utilitati", "cmdAction(1)"}}, "Agenda"},
        {"address-book-entry", {{"Agenda", "cmdAction(3)"}}, "Agenda"},
    };
    return steps;
}

/// Dispatches messages until none has come for a while.
void Settle() {
    const ULONGLONG end = GetTickCount64() + PatienceMilliseconds;
    while (GetTickCount64() < end) {
        if (MsgWaitForMultipleObjects(0, nullptr, FALSE, QuietMilliseconds, QS_ALLINPUT) == WAIT_TIMEOUT)
            return;
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

template <class Find>
HWND Await(const std::string& what, const Find& find) {
    const ULONGLONG end = GetTickCount64() + PatienceMilliseconds;
    while (GetTickCount64() < end) {
        Settle();
        if (const HWND found = find(); found != nullptr) return found;
    }
    throw data::Error(E_FAIL, what + " does not appear");
}

HWND AwaitForm(const std::string& name) {
    return Await(name, [&] { return FindForm(name); });
}

POINT MiddleOf(HWND window) {
    RECT place;
    GetWindowRect(window, &place);
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

void Perform(const Click& click) {
    const HWND form = AwaitForm(click.form);
    const HWND control = Await(std::string(click.form) + "." + click.control,
                               [&] { return FindControl(form, click.control); });
    SetForegroundWindow(form);
    Settle();
    const POINT middle = MiddleOf(control);
    SetCursorPos(middle.x, middle.y);
    std::array<INPUT, 2> inputs{};
    inputs[0].type = INPUT_MOUSE;
    inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    inputs[1].type = INPUT_MOUSE;
    inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof inputs[0]);
    Settle();
}

void TakePicture(const Step& step, const std::wstring& folder) {
    const HWND form = AwaitForm(step.form);
    RedrawWindow(form, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    Settle();
    RECT place;
    GetWindowRect(form, &place);
    const std::wstring path = folder + L"\\" + win32::ToWide(step.picture) + L".png";
    SavePng(place, path);
    std::printf("%s\n", win32::ToUtf8(path).c_str());
}

}  // namespace

void RunTour(const std::wstring& folder) {
    CreateDirectoryW(folder.c_str(), nullptr);
    for (const Step& step : Steps()) {
        for (const Click& click : step.clicks)
            Perform(click);
        TakePicture(step, folder);
    }
    SendMessageW(AwaitForm("Utilitati"), WM_CLOSE, 0, 0);
}

}  // namespace tavrin::host
