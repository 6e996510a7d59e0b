#include "e2e/peers_test.h"

#include <vector>

namespace tavrin::e2e {

SampleForm::SampleForm(forms::Desktop& desktop, const std::string& name)
    : Form(desktop, name, "Proba", forms::BorderStyle::FixedDialog) {
    SetClientSize({6000, 4000});
    MoveTo(600, 600);
    for (const char* entry : {"Lei", "Valuta"})
        list.AddItem(entry);
    list.SetListIndex(0);
    for (const char* entry : {"EUR", "USD"})
        typed.AddItem(entry);
    date.SetRange(data::ToOleDate({2003, 1, 1}), data::ToOleDate({2004, 1, 31}));
    date.SetDate(data::ToOleDate({2003, 5, 20}));
    grid.SetSize(5, 2);
    button.SetAccelerator(U'O');
}

void SampleForm::OnActivate() {
    ++activations;
    KeepOnTop();
}

void SampleForm::OnDeactivate() {
    ++deactivations;
    KeepOnTop();
}

void SampleForm::OnUnload() {
    if (whenUnloading) whenUnloading();
}

void SampleForm::OnKeyDown(int& keyCode, forms::Modifiers) {
    if (preview) preview(keyCode);
}

void PeersTest::Open() {
    Call([this] {
        if (!desktop) desktop = std::make_unique<win32::Desktop>(GetModuleHandleW(nullptr));
        form = std::make_shared<SampleForm>(*desktop, "Sample");
        form->whenUnloaded = [this](forms::Form&) { form.reset(); };
        form->Show();
    });
    window = AwaitForm("Sample");
    Require("the first field has the keyboard", [] { return FocusedName() == "field"; });
    ui.Settle();
}

void PeersTest::Unload() {
    Call([this] {
        if (form) form->Unload();
    });
    ui.Settle();
}

bool PeersTest::IsGone() {
    return WaitUntil([this] { return Call([this] { return !form && !desktop->IsInUse(); }); });
}

void PeersTest::TearDown() {
    Unload();
    EXPECT_TRUE(IsGone());
    WNDCLASSW description{};
    EXPECT_FALSE(GetClassInfoW(GetModuleHandleW(nullptr), L"Tavrin.Form", &description));
    EXPECT_FALSE(GetClassInfoW(GetModuleHandleW(nullptr), L"Tavrin.Control", &description));
    Call([this] { desktop.reset(); });
}

void PeersTest::Press(WORD key, std::initializer_list<WORD> held) {
    PressKey(key, held);
    ui.Settle();
}

void PeersTest::Type(std::string_view text) {
    TypeText(text);
    ui.Settle();
}

void PeersTest::ClickOn(const std::string& control) {
    Click(Control(control));
    ui.Settle();
}

void PeersTest::ClickInList(const forms::ComboBox& box, int pixelsDown) {
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    GetComboBoxInfo(Control(box.Name()).Handle(), &info);
    RECT place{};
    GetWindowRect(info.hwndList, &place);
    ClickAt({place.left + 5, place.top + pixelsDown});
    ui.Settle();
}

void PeersTest::Send(std::wstring_view units) {
    std::vector<INPUT> inputs;
    for (const wchar_t unit : units) {
        for (const DWORD flags : {DWORD{KEYEVENTF_UNICODE}, DWORD{KEYEVENTF_UNICODE | KEYEVENTF_KEYUP}}) {
            INPUT input{};
            input.type = INPUT_KEYBOARD;
            input.ki.wScan = unit;
            input.ki.dwFlags = flags;
            inputs.push_back(input);
        }
    }
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
    ui.Settle();
}

}  // namespace tavrin::e2e
