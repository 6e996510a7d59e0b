#include "e2e/driver/input.h"

#include <functional>
#include <string>
#include <vector>

#include "e2e/driver/platform.h"
#include "e2e/driver/screen.h"
#include "e2e/driver/wait.h"

namespace tavrin::e2e {

namespace {

constexpr unsigned long TimeToUncover =
    2000;  ///< milliseconds until a window that comes to the front is there

enum class Stroke { Down, Up };

bool IsExtended(WORD key) {
    return (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT || key == VK_DELETE;
}

INPUT KeyInput(WORD key, Stroke stroke) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags =
        (stroke == Stroke::Up ? KEYEVENTF_KEYUP : 0U) | (IsExtended(key) ? KEYEVENTF_EXTENDEDKEY : 0U);
    return input;
}

INPUT MouseInput(DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    return input;
}

LONG Normalized(LONG pixel, int screenSize) {
    // The middle of the pixel, in 65,536ths of the screen.
    return static_cast<LONG>((static_cast<long long>(pixel) * 65536 + 32768) / screenSize);
}

INPUT MoveInput(POINT place) {
    INPUT input = MouseInput(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE);
    input.mi.dx = Normalized(place.x, GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = Normalized(place.y, GetSystemMetrics(SM_CYSCREEN));
    return input;
}

void Send(std::vector<INPUT> inputs) {
    const UINT sent = SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
    if (sent != inputs.size()) throw DriverError("the system took no input");
}

/// Sends keys of which some are held for others. A display tells a window that the pointer enters or that the
/// keyboard comes to, as when a message closes over it, which keys are down; and these it has never heard of.
/// Wine then lets go of them, between one key of the chord and the next. A user's keys come from the display,
/// and stay down: so here no thread listens to it until the chord is complete.
void SendChord(std::vector<INPUT> inputs) {
    UiThread::HoldAll([&] { Send(std::move(inputs)); });
}

/// Windows has a thread of its own bring the mouse's events to the windows, so what is done next could
/// overtake them; under Wine they are there when SendInput returns. A display that is scaled may round the
/// place, so this gives up.
void AwaitMouse(const std::function<bool()>& hasArrived) {
    constexpr unsigned long TimeToArrive = 250;
    if (!IsWine()) WaitUntil(hasArrived, TimeToArrive);
}

/// Presses a button of the mouse, or lets it go.
void SendButton(Button button, Stroke stroke) {
    const bool left = button == Button::Left;
    const bool down = stroke == Stroke::Down;
    const DWORD pressed = left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN;
    const DWORD released = left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP;
    Send({MouseInput(down ? pressed : released)});
    AwaitMouse([&] { return (GetAsyncKeyState(left ? VK_LBUTTON : VK_RBUTTON) < 0) == down; });
}

/// Moves the pointer and waits until the windows' threads know. The display tells them in its own time of
/// where the pointer has been put; a button pressed before that would go down at the place before.
void Point(POINT place) {
    constexpr int RoundTrips = 3;  // a display that serves several clients has then come round to each
    Send({MoveInput(place)});
    AwaitMouse([&] {
        const POINT now = PointerPlace();
        return now.x == place.x && now.y == place.y;
    });
    for (int trip = 0; trip < RoundTrips; ++trip)
        AskDisplay();
    UiThread::SettleAll();
}

}  // namespace

void PressKey(WORD key, std::initializer_list<WORD> held) {
    std::vector<INPUT> inputs;
    for (const WORD modifier : held)
        inputs.push_back(KeyInput(modifier, Stroke::Down));
    inputs.push_back(KeyInput(key, Stroke::Down));
    inputs.push_back(KeyInput(key, Stroke::Up));
    for (const WORD modifier : held)
        inputs.push_back(KeyInput(modifier, Stroke::Up));
    held.size() == 0 ? Send(std::move(inputs)) : SendChord(std::move(inputs));
}

void TypeText(std::string_view text) {
    for (const char character : text) {
        const SHORT key = VkKeyScanW(static_cast<unsigned char>(character));
        const int held = HIBYTE(key);
        if (held > 1) {
            // Not every keyboard has the character, or has it without AltGr.
            TypeUnicode(std::wstring(1, static_cast<unsigned char>(character)));
            continue;
        }
        const bool shifted = held == 1;
        shifted ? PressKey(LOBYTE(key), {VK_SHIFT}) : PressKey(LOBYTE(key));
    }
}

void TypeUnicode(std::wstring_view text) {
    std::vector<INPUT> inputs;
    for (const wchar_t unit : text) {
        for (const DWORD stroke : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
            INPUT input{};
            input.type = INPUT_KEYBOARD;
            input.ki.wScan = unit;
            input.ki.dwFlags = KEYEVENTF_UNICODE | stroke;
            inputs.push_back(input);
        }
    }
    if (!inputs.empty()) Send(std::move(inputs));
}

void MovePointer(POINT place) {
    Point(place);
}

POINT PointerPlace() {
    POINT place{};
    GetCursorPos(&place);
    return place;
}

void ClickAt(POINT place, Button button) {
    Point(place);
    SendButton(button, Stroke::Down);
    SendButton(button, Stroke::Up);
}

void Click(const Window& target, Button button) {
    const POINT place = target.Center();
    HWND hit = nullptr;
    const bool isFree = WaitUntil(
        [&] {
            hit = WindowFromPoint(place);
            return hit == target.Handle() || IsChild(target.Handle(), hit) != FALSE;
        },
        TimeToUncover);
    if (!isFree) {
        throw DriverError(target.Name() + " is covered by " + Window(hit).ClassName() + " " +
                          Window(hit).Name());
    }
    ClickAt(place, button);
}

void Drag(UiThread& thread, POINT from, POINT to) {
    constexpr int Steps = 4;
    Point(from);
    SendButton(Button::Left, Stroke::Down);
    thread.Settle();
    for (int step = 1; step <= Steps; ++step)
        Point({from.x + (to.x - from.x) * step / Steps, from.y + (to.y - from.y) * step / Steps});
    SendButton(Button::Left, Stroke::Up);
    thread.Settle();
}

}  // namespace tavrin::e2e
