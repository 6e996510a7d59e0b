#include "host/program/tour.h"

#include <windows.h>

#include <cstdio>
#include <utility>
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

/// What is clicked and then typed, and which window it shows. A step without a picture leads to the next.
struct Step {
    const char* picture;
    std::vector<Click> clicks;
    const char* form;
    const wchar_t* typed = L"";
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
        {nullptr, {{"Utilitati", "cmdAction(0)"}, {"Notes", "ImgBouton(4)"}}, "Notes", L"Luni, 1 decembrie"},
        {nullptr, {{"Notes", "ImgBouton(4)"}}, "Notes", L"\rBanca: curs EUR \u0219i USD, 500 \u20ac\r"},
        {nullptr, {{"Notes", "ImgBouton(5)"}}, "Notes", L"de trimis balan\u021ba pe noiembrie\r"},
        {"notes", {{"Notes", "ImgBouton(5)"}, {"Notes", "ImgBouton(6)"}}, "Notes", L"Sun\u0103 la Radu"},
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

void Send(std::vector<INPUT> inputs) {
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
    Settle();
}

INPUT MouseInput(DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    return input;
}

/// A character as an input method sends it; the end of a line as its key.
INPUT CharacterInput(wchar_t unit, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    if (unit == L'\r') {
        input.ki.wVk = VK_RETURN;
        input.ki.dwFlags = flags;
    } else {
        input.ki.wScan = unit;
        input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
    }
    return input;
}

void Type(const std::wstring& text) {
    std::vector<INPUT> inputs;
    for (const wchar_t unit : text) {
        inputs.push_back(CharacterInput(unit, 0));
        inputs.push_back(CharacterInput(unit, KEYEVENTF_KEYUP));
    }
    if (!inputs.empty()) Send(std::move(inputs));
}

void Perform(const Click& click) {
    const HWND form = AwaitForm(click.form);
    const HWND control = Await(std::string(click.form) + "." + click.control,
                               [&] { return FindControl(form, click.control); });
    SetForegroundWindow(form);
    Settle();
    const POINT middle = MiddleOf(control);
    SetCursorPos(middle.x, middle.y);
    Send({MouseInput(MOUSEEVENTF_LEFTDOWN), MouseInput(MOUSEEVENTF_LEFTUP)});
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
        Type(step.typed);
        if (step.picture != nullptr) TakePicture(step, folder);
    }
    SendMessageW(AwaitForm("Utilitati"), WM_CLOSE, 0, 0);
}

}  // namespace tavrin::host
