#include "e2e/proofs/typed_events.h"

#include <array>

#include "e2e/driver/input.h"

namespace tavrin::e2e {

namespace {

constexpr std::array<WORD, 28> TypedKeys = {
    VK_RETURN, VK_RETURN, VK_ESCAPE, VK_TAB,   VK_TAB,  VK_TAB,    VK_UP,        VK_DOWN, VK_DOWN,  VK_LEFT,
    VK_RIGHT,  VK_HOME,   VK_END,    VK_PRIOR, VK_NEXT, VK_DELETE, VK_F4,        VK_BACK, VK_SPACE, VK_F1,
    VK_INSERT, '5',       '0',       'N',      'S',     'B',       VK_OEM_COMMA, VK_ADD};

constexpr std::array<const wchar_t*, 8> TypedTexts = {L"12",  L"37500",  L"1,5", L"abc",
                                                      L"EUR", L"\x219i", L"+7=", L"O'N]%_"};

bool IsOurs(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

POINT AnyPlaceIn(const Window& window, Random& random) {
    const RECT bounds = window.ScreenBounds();
    const auto part = [&](int length) {
        return length > 0 ? static_cast<LONG>(random.Below(static_cast<unsigned>(length))) : 0;
    };
    return {bounds.left + part(window.Width()), bounds.top + part(window.Height())};
}

}  // namespace

/// \return whether keys go to a window of the component's, or to a message or dialog of one
bool TypedEvents::ComeToFront() {
    const auto isThere = [this] {
        const HWND front = GetForegroundWindow();
        return front != nullptr && IsOurs(front) && front != host_.MainWindow().Handle();
    };
    if (isThere()) return true;
    for (const Window& form : OpenForms()) {
        if (!form.IsEnabled()) continue;
        host_.Ui().Post([form] { SetForegroundWindow(form.Handle()); });
        host_.Ui().Settle();
        return isThere();
    }
    return false;
}

void TypedEvents::Do() {
    struct Kind {
        const char* name;
        unsigned weight;
        void (TypedEvents::*action)();
    };
    static constexpr Kind kinds[] = {
        {"key", 50, &TypedEvents::Key},
        {"text", 15, &TypedEvents::Text},
        {"click on a control", 24, &TypedEvents::ClickOnControl},
        {"click", 10, &TypedEvents::ClickAnywhere},
        {"drag", 1, &TypedEvents::DragSomewhere},
    };
    constexpr unsigned all = 100;
    if (!ComeToFront()) return;
    unsigned number = random_.Below(all);
    for (const Kind& kind : kinds) {
        if (number < kind.weight) {
            last_ = kind.name;
            (this->*kind.action)();
            break;
        }
        number -= kind.weight;
    }
    host_.Ui().Settle();
}

void TypedEvents::Key() {
    const WORD key = random_.Pick(TypedKeys);
    switch (random_.Below(16)) {
        case 0:
        case 1:
            return PressKey(key, {VK_SHIFT});
        case 2:
            return PressKey(key, {VK_CONTROL});
        case 3:
            // The system takes the others for itself, or for a menu.
            return PressKey(
                random_.OnceIn(6) ? WORD{VK_F4} : random_.Pick(std::array<WORD, 4>{'A', 'M', 'R', 'S'}),
                {VK_MENU});
        default:
            return PressKey(key);
    }
}

void TypedEvents::Text() {
    TypeUnicode(random_.Pick(TypedTexts));
}

void TypedEvents::ClickOnControl() {
    const std::vector<Window> forms = OpenForms();
    if (forms.empty()) return;
    const Window form = forms[random_.Below(static_cast<unsigned>(forms.size()))];
    const std::vector<Window> controls = form.Controls();
    if (controls.empty()) return;
    const Window control = controls[random_.Below(static_cast<unsigned>(controls.size()))];
    const HWND hit = WindowFromPoint(control.Center());
    if (hit == nullptr || !IsOurs(hit)) return;
    ClickAt(control.Center(), random_.OnceIn(20) ? Button::Right : Button::Left);
}

void TypedEvents::ClickAnywhere() {
    const std::vector<Window> forms = OpenForms();
    if (forms.empty()) return;
    const POINT place = AnyPlaceIn(forms[random_.Below(static_cast<unsigned>(forms.size()))], random_);
    const HWND hit = WindowFromPoint(place);
    if (hit == nullptr || !IsOurs(hit)) return;
    ClickAt(place, random_.OnceIn(10) ? Button::Right : Button::Left);
}

void TypedEvents::DragSomewhere() {
    const std::vector<Window> forms = OpenForms();
    if (forms.empty()) return;
    const Window form = forms[random_.Below(static_cast<unsigned>(forms.size()))];
    const POINT from = AnyPlaceIn(form, random_);
    const HWND hit = WindowFromPoint(from);
    if (hit == nullptr || !IsOurs(hit)) return;
    Drag(host_.Ui(), from, AnyPlaceIn(form, random_));
}

}  // namespace tavrin::e2e
