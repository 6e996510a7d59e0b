#include "host/program/tour.h"

#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

#include "data/error.h"
#include "host/program/form_finder.h"
#include "host/program/png.h"
#include "win32/text.h"

namespace tavrin::host {
namespace {

constexpr ULONGLONG PatienceMilliseconds = 20000;
constexpr DWORD QuietMilliseconds = 300;

/// A click on a control, then what is pressed: digits, capital letters and the keys' own codes.
struct Action {
    const char* form;
    const char* control;
    std::string keys;
    std::wstring text = {};  ///< typed after the keys, in any script
};

/// One picture: what to do before it, and which window it shows.
struct Step {
    const char* picture;
    std::vector<Action> actions;
    const char* form;
};

const std::string Enter(1, VK_RETURN);

const std::vector<Step>& Steps() {
    static const std::vector<Step> steps{
        {"palette", {}, "Utilitati"},
        {"palette-rolled-up", {{"Utilitati", "imgRollup(0)", ""}}, "Utilitati"},
        {"calculator",
         {{"Utilitati", "imgRollup(1)", ""},
          {"Utilitati", "cmdAction(2)", ""},
          {"frmCalculator", "Number(1)", "25000"}},
         "frmCalculator"},
        {"currency-chooser", {{"frmCalculator", "cmdVal", ""}}, "AlegeMoneda"},
        {"calculator-with-rate", {{"AlegeMoneda", "cmdAction(0)", ""}}, "frmCalculator"},
        {"rate-list", {{"frmCalculator", "cmdUnload", ""}, {"Utilitati", "cmdAction(3)", ""}}, "CursValutar"},
        {"rate-entry", {{"CursValutar", "cmdAction(0)", ""}}, "CursValutarDetaliu"},
        {"rate-entry-editing", {{"CursValutarDetaliu", "DataCurs", Enter}}, "CursValutarDetaliu"},
        {"rate-entry-modify",
         {{"CursValutarDetaliu", "cmdAction(1)", ""}, {"CursValutar", "cmdAction(1)", ""}},
         "CursValutarDetaliu"},
        {"add-currency",
         {{"CursValutarDetaliu", "cmdAction(1)", ""}, {"CursValutar", "cmdAction(3)", ""}},
         "CereMoneda"},
        {"evolution-prompt",
         {{"CereMoneda", "cmdAction(1)", ""}, {"CursValutar", "cmdAction(5)", ""}},
         "EvolutieCurs"},
        {"evolution", {{"EvolutieCurs", "cmdAction(1)", ""}}, "EvolutieCurs"},
        {"address-book", {{"Utilitati", "cmdAction(1)", ""}}, "Agenda"},
        {"address-book-modify", {{"Agenda", "cmdAction(3)", ""}}, "Agenda"},
        {"address-book-entry", {{"Agenda", "cmdAction(1)", ""}, {"Agenda", "cmdAction(2)", ""}}, "Agenda"},
        {"address-book-compact",
         {{"Agenda", "cmdAction(1)", ""}, {"Agenda", "TextBoxes(0)", "NIMENI" + Enter}},
         "Agenda"},
        {"notes",
         {{"Agenda", "cmdAction(1)", ""},
          {"Utilitati", "cmdAction(0)", ""},
          {"Notes", "ImgBouton(4)", "", L"Luni, 1 decembrie"},
          {"Notes", "ImgBouton(4)", "", L"\rBanca: curs EUR \u0219i USD, 500 \u20ac\r"},
          {"Notes", "ImgBouton(5)", "", L"de trimis balan\u021ba pe noiembrie\r"},
          {"Notes", "ImgBouton(5)", ""},
          {"Notes", "ImgBouton(6)", "", L"Sun\u0103 la Radu"}},
         "Notes"},
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

void Send(const INPUT& input) {
    INPUT sent = input;
    SendInput(1, &sent, sizeof sent);
}

void Click(HWND control) {
    const POINT middle = MiddleOf(control);
    SetCursorPos(middle.x, middle.y);
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    Send(input);
    input.mi.dwFlags = MOUSEEVENTF_LEFTUP;
    Send(input);
    Settle();
}

void Press(char key) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<unsigned char>(key);
    Send(input);
    input.ki.dwFlags = KEYEVENTF_KEYUP;
    Send(input);
}

void Type(wchar_t unit) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = unit;
    input.ki.dwFlags = KEYEVENTF_UNICODE;
    Send(input);
    input.ki.dwFlags |= KEYEVENTF_KEYUP;
    Send(input);
}

void Perform(const Action& action) {
    const HWND form = AwaitForm(action.form);
    const HWND control = Await(std::string(action.form) + "." + action.control,
                               [&] { return FindControl(form, action.control); });
    SetForegroundWindow(form);
    Settle();
    Click(control);
    for (const char key : action.keys)
        Press(key);
    for (const wchar_t unit : action.text)
        unit == L'\r' ? Press(VK_RETURN) : Type(unit);
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
        for (const Action& action : step.actions)
            Perform(action);
        TakePicture(step, folder);
    }
    SendMessageW(AwaitForm("Utilitati"), WM_CLOSE, 0, 0);
}

}  // namespace tavrin::host
