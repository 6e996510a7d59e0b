#include "e2e/proofs/attendant.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "e2e/driver/process.h"
#include "e2e/driver/wait.h"
#include "host/windows/catalogue.h"

namespace tavrin::e2e {

namespace {

constexpr int PromptId = 0xFFFF;
constexpr int FileNameField = 0x480;
constexpr unsigned OnceInAttentions = 4;  ///< how long things stay open

/// What each of them may say, whoever asks.
constexpr auto CommonPrompts = std::to_array<std::string_view>({
    "Eroare 91\n",                      // a host without a connection
    "Eroare 3709\n",                    // the host has gone on to another connection meanwhile
    "Eroare -2147217900 (80040E14)\n",  // the database refuses a name that was typed
});

std::vector<Window> Modals() {
    std::vector<Window> windows = TopLevelWindows();
    std::erase_if(windows,
                  [](const Window& window) { return window.ClassName() != "#32770" || !window.IsEnabled(); });
    return windows;
}

Window PromptOf(const Window& window) {
    return Window(GetDlgItem(window.Handle(), PromptId));
}

bool IsKnown(const std::string& prompt) {
    static const std::vector<host::WindowEntry> windows = host::AllWindows();
    const auto begins = [&](std::string_view known) { return prompt.starts_with(known); };
    return std::ranges::any_of(CommonPrompts, begins) ||
           std::ranges::any_of(windows, [&](const host::WindowEntry& window) {
               return std::ranges::any_of(window.messages, begins);
           });
}

bool BelongsToDialog(const Window& message) {
    const Window owner(GetWindow(message.Handle(), GW_OWNER));
    return owner.ClassName() == "#32770";
}

/// Where random notes are written and found again.
std::wstring RandomNote(unsigned number) {
    return TemporaryPath((L"random" + std::to_wstring(number) + L".rtf").c_str());
}

}  // namespace

void Attendant::Attend() {
    constexpr std::size_t TooMany = 2;
    EndMenu();
    if (random_.OnceIn(OnceInAttentions)) host_.LetGoOfMouse();
    EndModal(Modals().size() > TooMany ? Urgency::AtOnce : Urgency::Sometimes);
}

/// \return whether there was one
bool Attendant::EndModal(Urgency urgency) {
    const std::vector<Window> modals = Modals();
    if (modals.empty()) return false;
    const Window& front = modals.front();
    const bool isMessage = PromptOf(front).Exists();
    if (isMessage) Remember(front);
    if (urgency == Urgency::Sometimes && !random_.OnceIn(OnceInAttentions)) return true;
    isMessage ? Answer(front) : EndDialog(front, urgency);
    return true;
}

void Attendant::Remember(const Window& message) {
    if (message.Handle() == lastMessage_) return;
    lastMessage_ = message.Handle();
    const std::string prompt = PromptOf(message).Text();
    constexpr std::size_t enough = 60;
    ++messages_[message.Text() + ": " + prompt.substr(0, enough)];
    if (!IsKnown(prompt) && !BelongsToDialog(message)) unknown_ = message.Text() + ": " + prompt;
}

void Attendant::Answer(const Window& message) {
    constexpr std::array buttons = {IDOK, IDYES, IDNO, IDCANCEL};
    std::vector<int> there;
    std::ranges::copy_if(buttons, std::back_inserter(there),
                         [&](int id) { return GetDlgItem(message.Handle(), id) != nullptr; });
    if (there.empty()) return;
    Press(message, random_.Pick(there));
}

void Attendant::EndDialog(const Window& dialog, Urgency urgency) {
    if (dialog.Handle() != lastDialog_) ++dialogs_;
    lastDialog_ = dialog.Handle();
    if (urgency == Urgency::AtOnce || random_.OnceIn(2)) return Press(dialog, IDCANCEL);
    const HWND handle = dialog.Handle();
    host_.Ui().Post([handle, name = RandomNote(random_.Below(4))] {
        if (GetDlgItem(handle, FileNameField) != nullptr)
            SetDlgItemTextW(handle, FileNameField, name.c_str());
    });
    Press(dialog, IDOK);
}

/// Once at most: a dialog that has been ended, and only waits for one above it, may not be ended again.
void Attendant::Press(const Window& modal, int button) {
    host_.Ui().Post([modal, button] {
        if (modal.IsVisible()) SendMessageW(modal.Handle(), WM_COMMAND, static_cast<WPARAM>(button), 0);
    });
}

void Attendant::EndMenu() {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    if (!GetGUIThreadInfo(host_.Ui().Id(), &info)) return;
    if ((info.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE)) != 0)
        host_.Ui().Post([] { ::EndMenu(); });
}

void Attendant::EndMenuAndDrag() {
    EndMenu();
    host_.LetGoOfMouse();
}

bool Attendant::CloseOneWindow() {
    const std::vector<Window> forms = OpenForms();
    if (!forms.empty()) PostMessageW(forms.front().Handle(), WM_CLOSE, 0, 0);
    return !forms.empty();
}

void Attendant::CloseEverything() {
    const bool isClosed = WaitUntil([&] {
        EndMenuAndDrag();
        if (EndModal(Urgency::AtOnce)) return false;
        const bool wasOpen = CloseOneWindow();
        host_.Call([] {});
        return !wasOpen;
    });
    if (!isClosed) throw DriverError("a window does not close");
    host_.Ui().Settle();
}

}  // namespace tavrin::e2e
