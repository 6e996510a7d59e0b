#include "e2e/proofs/attendant.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "e2e/driver/process.h"
#include "e2e/driver/wait.h"

namespace tavrin::e2e {

namespace {

constexpr int PromptId = 0xFFFF;
constexpr int FileNameField = 0x480;
constexpr unsigned OnceInAttentions = 4;  ///< how long things stay open

/// What the windows may say, by the beginnings of the prompts.
constexpr auto KnownPrompts = std::to_array<std::string_view>({
    "Numele este obligatoriu !",
    "Prenumele este obligatoriu !",
    "Doriti sa parasiti forma?",
    "Doriti sa stergeti din agenda persoana ",
    "Nu poate fi stearsa aceasta inregistrare",
    "Doriti sa creati o nota noua ?",
    "Nota nu a putut fi incarcata !",
    "Nota nu a putut fi salvata !",
    "Fisierul ales nu este o nota RTF !",
    "Fisierul ales este incomplet",
    "Nota este prea mare !",
    "Unele imagini din fisier nu pot fi pastrate",
    "Nota a fost salvata fara unele imagini",
    "Valoare obligatorie !",
    "Valoarea cursului trebuie sa fie >= 0  !",
    "Exista curs valutar la aceasta data!",
    "Nume Obligatoriu",
    "Moneda deja existenta !",
    "Acest curs a fost validat !",
    "Sunteti sigur ca doriti sa stergeti cursul valutar",
    "Data documentului introdus nu poate fi mai mica",
    "Nu puteti sterge toate monedele !",
    "Impartire la 0 !!",
    "String or binary data would be truncated.",   // a currency's name is too long
    "Incorrect syntax near ",                      // a currency's name ends its quotation
    "Unclosed quotation mark ",                    // the same
    "The embedded database does not understand ",  // the same, in words that a server might take
    "Eroare 6\n",                                  // a result is too large for a number
    "Eroare 11\n",                                 // a rate is 0, which may be entered
    "Eroare 91\n",                                 // a host without a connection
    "Lipseste conexiunea la baza de date ",        // the same while a currency is added
    "Eroare 3709\n",                               // the host has gone on to another connection meanwhile
    "Eroare 13\n",                                 // a day is to be changed where the list has none
    "Eroare 94\n",                                 // a person that another user has entered lacks a text
    "Eroare -2147217833 (80040E57)\n",             // a person's text is too long
    "Eroare -2147217873 (80040E2F)\n",             // a person is entered who is there already
    "Eroare -2147217900 (80040E14)\n",             // the database refuses a name that was typed
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
    return std::ranges::any_of(KnownPrompts,
                               [&](std::string_view known) { return prompt.starts_with(known); });
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
    EndModal(Modals().size() > TooMany ? Zeal::AtOnce : Zeal::Sometimes);
}

/// \return whether there was one
bool Attendant::EndModal(Zeal zeal) {
    const std::vector<Window> modals = Modals();
    if (modals.empty()) return false;
    const Window& front = modals.front();
    const bool isMessage = PromptOf(front).Exists();
    if (isMessage) Remember(front);
    if (zeal == Zeal::Sometimes && !random_.OnceIn(OnceInAttentions)) return true;
    isMessage ? Answer(front) : EndDialog(front, zeal);
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

void Attendant::EndDialog(const Window& dialog, Zeal zeal) {
    if (dialog.Handle() != lastDialog_) ++dialogs_;
    lastDialog_ = dialog.Handle();
    if (zeal == Zeal::AtOnce || random_.OnceIn(2)) return Press(dialog, IDCANCEL);
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
        if (EndModal(Zeal::AtOnce)) return false;
        const bool wasOpen = CloseOneWindow();
        host_.Call([] {});
        return !wasOpen;
    });
    if (!isClosed) throw DriverError("a window does not close");
    host_.Ui().Settle();
}

}  // namespace tavrin::e2e
