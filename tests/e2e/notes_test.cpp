// The note pad: opened from the palette, written in, formatted, saved and loaded by real input and through
// the platform's own dialogs.

#include <windows.h>

#include <commdlg.h>
#include <dlgs.h>
#include <richedit.h>
#include <sddl.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>

#include "e2e/driver/accessible_reader.h"
#include "e2e/driver/platform.h"
#include "e2e/driver/platform_dialog.h"
#include "e2e/driver/process.h"
#include "e2e/driver/screen.h"
#include "e2e/driver/shown_message.h"
#include "e2e/host_test.h"
#include "win32/base/text.h"
#include "win32/peers/rich_edit_stream.h"

namespace tavrin::e2e {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

enum BarButton { NewOrOpen, Save, ChooseFont, ChooseColor, Bold, Italic, Underline, Leave };

constexpr char OpenTitle[] = "Alegeti fisierul dorit !";
constexpr char SaveTitle[] = "Alegeti calea si numele fisierului in care se va salva !";
constexpr char NotLoaded[] = "Nota nu a putut fi incarcata !";
constexpr char NotSaved[] = "Nota nu a putut fi salvata !";

/// Romanian in both ways of writing, Greek, the euro sign and an emoji.
const std::wstring Letters =
    L"\x103\xe2\xee \x15f\x163 \x219\x21b \x102\xc2\xce\x15e\x162\x218\x21a \x3b1\x3b2\x3a9 \x20ac "
    L"\xd83d\xde00";

/// What of a selection's look the tests compare. -1 where it differs inside the selection.
struct Look {
    std::string face;
    int points = -1;
    int bold = -1;
    int italic = -1;
    int underline = -1;
    int strikeThru = -1;
    long color = -1;
    bool operator==(const Look&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Look& look) {
    return stream << look.face << ' ' << look.points << " b" << look.bold << " i" << look.italic << " u"
                  << look.underline << " s" << look.strikeThru << " c" << look.color;
}

/// A folder of its own, gone with the test.
class Folder {
  public:
    Folder() {
        std::array<wchar_t, MAX_PATH + 1> place{};
        GetTempPathW(static_cast<DWORD>(place.size()), place.data());
        path_ = std::filesystem::path(place.data()) / (L"note-" + std::to_wstring(GetTickCount64()));
        std::filesystem::create_directory(path_);
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::wstring File(const std::wstring& name) const { return (path_ / name).wstring(); }

    std::vector<std::wstring> Names() const {
        std::vector<std::wstring> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_))
            names.push_back(entry.path().filename().wstring());
        std::ranges::sort(names);
        return names;
    }

  private:
    std::filesystem::path path_;
};

std::string ReadFile(const std::wstring& name) {
    std::ifstream stream(std::filesystem::path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void WriteFile(const std::wstring& name, const std::string& content) {
    std::ofstream stream(std::filesystem::path(name), std::ios::binary);
    stream << content;
}

class NotesTest : public HostTest {
  protected:
    explicit NotesTest(LoopKind loop = LoopKind::Plain) : HostTest(loop) {}

    void Open() {
        Click(OpenPalette().Control("cmdAction(0)"));
        window = AwaitForm("Notes");
        Require("the note's focus", [] { return FocusedName() == "txtNota"; });
        host->Ui().Settle();
    }

    Window Note() const { return window.Control("txtNota"); }
    Window ButtonOf(int index) const { return window.Control("ImgBouton(" + std::to_string(index) + ")"); }

    void ClickButton(int index) {
        Click(ButtonOf(index));
        host->Ui().Settle();
    }

    void Type(std::wstring_view text) {
        TypeUnicode(text);
        host->Ui().Settle();
    }

    void Press(WORD key, std::initializer_list<WORD> held = {}) {
        PressKey(key, held);
        host->Ui().Settle();
    }

    std::wstring Text() {
        return host->Call([&] { return win32::ReadRichText(Note().Handle()); });
    }

    /// The format of a part of the text. The selection is put back.
    Look LookAt(LONG start, LONG length) {
        return host->Call([&] {
            CHARRANGE before{};
            SendMessageW(Note().Handle(), EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&before));
            CHARRANGE range{start, start + length};
            SendMessageW(Note().Handle(), EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
            Look look = SelectedLook();
            SendMessageW(Note().Handle(), EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&before));
            return look;
        });
    }

    Look SelectedLook() {
        CHARFORMAT2W format{};
        format.cbSize = sizeof format;
        SendMessageW(Note().Handle(), EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
        const auto effect = [&](DWORD mask, DWORD bit) {
            if ((format.dwMask & mask) == 0) return -1;
            return (format.dwEffects & bit) != 0 ? 1 : 0;
        };
        Look look;
        if (format.dwMask & CFM_FACE) look.face = win32::ToUtf8(format.szFaceName);
        if (format.dwMask & CFM_SIZE) look.points = static_cast<int>(format.yHeight / 20);
        look.bold = effect(CFM_BOLD, CFE_BOLD);
        look.italic = effect(CFM_ITALIC, CFE_ITALIC);
        look.underline = effect(CFM_UNDERLINE, CFE_UNDERLINE);
        look.strikeThru = effect(CFM_STRIKEOUT, CFE_STRIKEOUT);
        if (format.dwMask & CFM_COLOR) {
            const bool automatic = (format.dwEffects & CFE_AUTOCOLOR) != 0;
            look.color = automatic ? 0 : static_cast<long>(format.crTextColor);
        }
        return look;
    }

    void Select(LONG start, LONG length) {
        host->Call(
            [&] { SendMessageW(Note().Handle(), EM_SETSEL, static_cast<WPARAM>(start), start + length); });
    }

    /// Clicks the first button and answers the question.
    void AnswerQuestion(int answer) {
        ClickButton(NewOrOpen);
        const ShownMessage message = ShownMessage::Await();
        EXPECT_EQ(message.Prompt(), "Doriti sa creati o nota noua ?");
        EXPECT_EQ(message.Title(), "Bloc Notes");
        EXPECT_EQ(message.Icon(), MessageIcon::Question);
        EXPECT_THAT(message.Buttons(), ElementsAre(IDYES, IDNO));
        EXPECT_TRUE(message.IsInFront());
        EXPECT_FALSE(window.IsEnabled());
        message.Press(answer);
    }

    PlatformDialog Dialog() {
        const PlatformDialog dialog = PlatformDialog::AwaitOf(window);
        EXPECT_TRUE(dialog.IsInFront());
        EXPECT_FALSE(window.IsEnabled());
        return dialog;
    }

    void ExpectUsable() {
        // The dialog gives the keyboard back before the action that it was part of has ended.
        EXPECT_TRUE(WaitUntil([this] { return window.IsEnabled(); }));
        EXPECT_TRUE(AwaitFocus("txtNota"));
        EXPECT_FALSE(ShownMessage::Find());
        host->Ui().Settle();
    }

    void NewNote() {
        AnswerQuestion(IDYES);
        ExpectUsable();
    }

    void SaveAs(const std::wstring& file) {
        ClickButton(Save);
        const PlatformDialog dialog = Dialog();
        EXPECT_EQ(dialog.Title(), SaveTitle);
        EnterFile(dialog, file);
        ExpectUsable();
    }

    void Load(const std::wstring& file) {
        ChooseToLoad(file);
        ExpectUsable();
    }

    void ChooseToLoad(const std::wstring& file) {
        AnswerQuestion(IDNO);
        const PlatformDialog dialog = Dialog();
        EXPECT_EQ(dialog.Title(), OpenTitle);
        EnterFile(dialog, file);
    }

    /// The same where the note pad has something to say of the file. Answers with what it says.
    std::string LoadTold(const std::wstring& file, MessageIcon icon) {
        ChooseToLoad(file);
        return TakeMessage(icon);
    }

    std::string SaveTold(const std::wstring& file) {
        ClickButton(Save);
        EnterFile(Dialog(), file);
        return TakeMessage(MessageIcon::Error);
    }

    std::string TakeMessage(MessageIcon icon) {
        const ShownMessage message = ShownMessage::Await();
        EXPECT_EQ(message.Title(), "Bloc Notes");
        EXPECT_EQ(message.Icon(), icon);
        EXPECT_TRUE(message.IsInFront());
        std::string prompt = message.Prompt();
        message.Press(IDOK);
        ExpectUsable();
        return prompt;
    }

    /// Writes the file and loads it.
    void LoadText(const std::string& content) {
        const std::wstring file = folder.File(L"proba.rtf");
        WriteFile(file, content);
        Load(file);
    }

    /// Saves, empties, loads and saves again: text and file must be the same. Answers with the file.
    std::string ExpectNothingDrifts() {
        const std::wstring text = Text();
        const std::wstring first = folder.File(L"prima.rtf");
        const std::wstring second = folder.File(L"a doua.rtf");
        SaveAs(first);
        NewNote();
        Load(first);
        EXPECT_EQ(Text(), text);
        SaveAs(second);
        EXPECT_EQ(ReadFile(second), ReadFile(first));
        return ReadFile(first);
    }

    /// The field for the name has the keyboard when such a dialog opens.
    void EnterFile(const PlatformDialog& dialog, const std::wstring& file) {
        PressKey('A', {VK_CONTROL});
        PressKey(VK_END);
        PressKey(VK_HOME, {VK_SHIFT});
        TypeUnicode(file);
        host->Ui().Settle();
        dialog.Confirm();
    }

    Window window;
    Folder folder;
};

// The window.

TEST_F(NotesTest, OpensFromThePaletteReadyToWrite) {
    Open();
    EXPECT_EQ(window.Text(), "Bloc Notes");
    EXPECT_TRUE(window.IsTopmost());
    Type(L"abc");
    Press(VK_RETURN);
    Press(VK_TAB);
    Type(L"def");
    EXPECT_EQ(Text(), L"abc\r\n\tdef");
    const AccessibleFacts facts = ReadAccessible(host->Ui(), Note());
    EXPECT_EQ(facts.role, ROLE_SYSTEM_TEXT);
    EXPECT_EQ(facts.value, "abc\r\n\tdef");
}

TEST_F(NotesTest, EscapeAndTheLastButtonCloseWithoutAQuestion) {
    Open();
    Type(L"abc");
    Press(VK_ESCAPE);
    EXPECT_TRUE(AwaitClosed("Notes"));
    Click(AwaitForm("Utilitati").Control("cmdAction(0)"));
    window = AwaitForm("Notes");
    Require("the note's focus", [] { return FocusedName() == "txtNota"; });
    EXPECT_EQ(Text(), L"");
    Type(L"abc");
    ClickButton(Leave);
    EXPECT_TRUE(AwaitClosed("Notes"));
    EXPECT_FALSE(ShownMessage::Find());
}

TEST_F(NotesTest, ClosesWithThePalette) {
    Open();
    PostMessageW(AwaitForm("Utilitati").Handle(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(AwaitClosed("Notes"));
}

TEST_F(NotesTest, TheBarShowsWhatTheMouseIsOver) {
    constexpr COLORREF FaceHot = 0x383838;
    constexpr COLORREF FacePressed = 0x181818;
    Open();
    const Window button = ButtonOf(ChooseFont);
    EXPECT_FALSE(ShowsColor(button, FaceHot));
    MovePointer(button.Center());
    EXPECT_TRUE(WaitUntil([&] { return ShowsColor(button, FaceHot); }));
    MovePointer(ButtonOf(Save).Center());
    EXPECT_TRUE(WaitUntil([&] { return !ShowsColor(button, FaceHot); }));
    EXPECT_TRUE(WaitUntil([&] { return ShowsColor(ButtonOf(Save), FaceHot); }));
    MovePointer(PointerAtRest());
    EXPECT_TRUE(WaitUntil([&] { return !ShowsColor(ButtonOf(Save), FaceHot); }));
    EXPECT_FALSE(ShowsColor(button, FacePressed));
}

TEST_F(NotesTest, TheFocusIsToBeSeen) {
    constexpr COLORREF Focus = 0x00FF00;
    constexpr COLORREF FocusOnPage = 0x008000;
    Open();
    EXPECT_TRUE(WaitUntil([&] { return ShowsColor(Note(), FocusOnPage); }));
    EXPECT_FALSE(ShowsColor(Note(), Focus));
    Press(VK_TAB, {VK_SHIFT});
    EXPECT_TRUE(AwaitFocus("ImgBouton(7)"));
    EXPECT_TRUE(WaitUntil([&] { return ShowsColor(ButtonOf(Leave), Focus); }));
    EXPECT_TRUE(WaitUntil([&] { return !ShowsColor(Note(), FocusOnPage); }));
    Press(VK_TAB);
    EXPECT_TRUE(AwaitFocus("txtNota"));
}

// Formats.

TEST_F(NotesTest, TheSwitchesByMouseAndKeys) {
    Open();
    Type(L"abcd");
    Select(1, 2);
    ClickButton(Bold);
    EXPECT_EQ(LookAt(0, 1).bold, 0);
    EXPECT_EQ(LookAt(1, 2).bold, 1);
    EXPECT_EQ(LookAt(3, 1).bold, 0);
    Select(0, 4);
    EXPECT_EQ(LookAt(0, 4).bold, -1);
    ClickButton(Bold);
    EXPECT_EQ(LookAt(0, 4).bold, 1);
    Press('B', {VK_CONTROL});
    EXPECT_EQ(LookAt(0, 4).bold, 0);
    Press('I', {VK_CONTROL});
    EXPECT_EQ(LookAt(0, 4).italic, 1);
    Press('U', {VK_CONTROL});
    EXPECT_EQ(LookAt(0, 4).underline, 1);
    ClickButton(Italic);
    ClickButton(Underline);
    const Look plain = LookAt(0, 4);
    EXPECT_TRUE(plain.bold == 0 && plain.italic == 0 && plain.underline == 0) << plain;
    EXPECT_EQ(Text(), L"abcd");
    ExpectUsable();
}

TEST_F(NotesTest, TheFontDialogShowsTheSelectionAndChangesIt) {
    Open();
    Type(L"abcd");
    Select(1, 2);
    ClickButton(Bold);
    ClickButton(Underline);
    ClickButton(ChooseFont);
    const PlatformDialog dialog = Dialog();
    EXPECT_EQ(dialog.Item(cmb1).Text(), "Arial");
    EXPECT_EQ(dialog.Item(cmb3).Text(), "10");
    EXPECT_FALSE(dialog.IsChecked(chx1));
    EXPECT_TRUE(dialog.IsChecked(chx2));
    dialog.Fill(cmb3, L"18");
    ClickAt(dialog.Item(chx1).Center());
    host->Ui().Settle();
    dialog.Confirm();
    ExpectUsable();
    const Look changed{"Arial", 18, 1, 0, 1, 1, 0};
    EXPECT_EQ(LookAt(1, 2), changed);
    const Look before{"Arial", 10, 0, 0, 0, 0, 0};
    EXPECT_EQ(LookAt(0, 1), before);
    EXPECT_EQ(LookAt(3, 1), before);
}

TEST_F(NotesTest, WhatDiffersInTheSelectionSurvivesTheFontDialog) {
    Open();
    Type(L"abcd");
    Select(1, 2);
    ClickButton(Bold);
    ClickButton(Underline);
    Select(0, 4);
    ClickButton(ChooseFont);
    const PlatformDialog dialog = Dialog();
    dialog.Fill(cmb3, L"14");
    host->Ui().Settle();
    dialog.Confirm();
    ExpectUsable();
    EXPECT_EQ(LookAt(0, 4).points, 14);
    EXPECT_EQ(LookAt(1, 2).bold, 1);
    EXPECT_EQ(LookAt(0, 1).bold, 0);
    EXPECT_EQ(LookAt(1, 2).underline, 1);
    EXPECT_EQ(LookAt(0, 1).underline, 0);
}

TEST_F(NotesTest, TheColorDialogColorsTheSelection) {
    constexpr int DefineOwn = 719;
    constexpr int RedField = 706;
    constexpr int GreenField = 707;
    constexpr int BlueField = 708;
    Open();
    Type(L"abcd");
    Select(1, 2);
    ClickButton(ChooseColor);
    const PlatformDialog dialog = Dialog();
    Click(dialog.Item(DefineOwn));
    host->Ui().Settle();
    dialog.Fill(RedField, L"200");
    dialog.Fill(GreenField, L"30");
    dialog.Fill(BlueField, L"40");
    host->Ui().Settle();
    dialog.Confirm();
    ExpectUsable();
    EXPECT_EQ(LookAt(1, 2).color, static_cast<long>(RGB(200, 30, 40)));
    EXPECT_EQ(LookAt(0, 1).color, 0);
    EXPECT_EQ(LookAt(3, 1).color, 0);
}

TEST_F(NotesTest, CancelledDialogsChangeNothing) {
    Open();
    Type(L"abcd");
    Select(0, 4);
    const Look before = LookAt(0, 4);
    for (const int button : {Save, ChooseFont, ChooseColor}) {
        ClickButton(button);
        Dialog().Cancel();
        ExpectUsable();
        EXPECT_EQ(Text(), L"abcd");
        EXPECT_EQ(LookAt(0, 4), before);
    }
    AnswerQuestion(IDNO);
    Dialog().Cancel();
    ExpectUsable();
    EXPECT_EQ(Text(), L"abcd");
    EXPECT_THAT(folder.Names(), IsEmpty());
}

// An assistive tool presses a button of a window that is not the active one: the window that is active waits
// too.
TEST_F(NotesTest, TheActiveWindowWaitsUnderTheDialogOfAnother) {
    Open();
    const Window palette = AwaitForm("Utilitati");
    Click(palette.Control("Label4"));
    Require("the palette in use", [&] { return GetForegroundWindow() == palette.Handle(); });
    host->Ui().Post([this] {
        VARIANT self{};
        self.vt = VT_I4;
        OpenAccessible(ButtonOf(Save))->accDoDefaultAction(self);
    });
    const PlatformDialog dialog = PlatformDialog::AwaitOf(window);
    EXPECT_FALSE(window.IsEnabled());
    EXPECT_FALSE(palette.IsEnabled());
    dialog.Cancel();
    ExpectUsable();
    EXPECT_TRUE(palette.IsEnabled());
}

// Files.

TEST_F(NotesTest, WrittenFormattedSavedEmptiedAndLoaded) {
    Open();
    Type(L"Plain ");
    ClickButton(Bold);
    Type(L"bold ");
    ClickButton(Italic);
    Type(Letters);
    ClickButton(Bold);
    ClickButton(Italic);
    Press(VK_RETURN);
    ClickButton(Underline);
    Type(L"under{line}\\");
    const std::wstring text = Text();
    EXPECT_EQ(text, L"Plain bold " + Letters + L"\r\nunder{line}\\");
    const auto letters = static_cast<LONG>(Letters.size());
    const auto looks = [&] {
        return std::vector<Look>{LookAt(0, 6), LookAt(6, 5), LookAt(11, letters), LookAt(12 + letters, 12)};
    };
    const std::vector<Look> before = looks();
    EXPECT_THAT(before, ElementsAre(Look{"Arial", 10, 0, 0, 0, 0, 0}, Look{"Arial", 10, 1, 0, 0, 0, 0},
                                    Look{"Arial", 10, 1, 1, 0, 0, 0}, Look{"Arial", 10, 0, 0, 1, 0, 0}));
    const std::wstring file = folder.File(L"nota.rtf");
    SaveAs(file);
    EXPECT_THAT(folder.Names(), ElementsAre(L"nota.rtf")) << "no other file is left";
    const std::string saved = ReadFile(file);
    EXPECT_TRUE(saved.starts_with("{\\rtf1"));
    EXPECT_EQ(saved.find('\0'), std::string::npos);
    EXPECT_TRUE(
        std::ranges::all_of(saved, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; }));
    NewNote();
    EXPECT_EQ(Text(), L"");
    Load(file);
    EXPECT_EQ(Text(), text);
    EXPECT_EQ(looks(), before);
    // Again and again: nothing drifts away.
    SaveAs(file);
    NewNote();
    Load(file);
    EXPECT_EQ(Text(), text);
    EXPECT_EQ(looks(), before);
}

TEST_F(NotesTest, ANameWithoutExtensionGetsOne) {
    Open();
    Type(L"abc");
    SaveAs(folder.File(L"fara"));
    EXPECT_THAT(folder.Names(), ElementsAre(L"fara.rtf"));
}

TEST_F(NotesTest, SavingReplacesTheOldNoteAtOnce) {
    Open();
    const std::wstring file = folder.File(L"nota.rtf");
    WriteFile(file, std::string(100000, 'x'));
    Type(L"abc");
    SaveAs(file);
    EXPECT_TRUE(ReadFile(file).starts_with("{\\rtf1"));
    EXPECT_LT(ReadFile(file).size(), 10000U);
    EXPECT_THAT(folder.Names(), ElementsAre(L"nota.rtf"));
}

/// A drive that stands for a folder in which nobody can make a file: one of the system beneath Wine, where
/// rights do not bind an administrator; on Windows one of this test, whose rights refuse everybody.
class UnwritableDrive {
  public:
    UnwritableDrive() : folder_(IsWine() ? Beneath : TemporaryPath(L"tavrin_e2e unwritable")) {
        if (!IsWine()) MakeRefusing(folder_);
        DefineDosDeviceW(0, Name, folder_.c_str());
    }
    ~UnwritableDrive() {
        DefineDosDeviceW(DDD_REMOVE_DEFINITION, Name, folder_.c_str());
        if (!IsWine()) RemoveDirectoryW(folder_.c_str());
    }
    UnwritableDrive(const UnwritableDrive&) = delete;
    UnwritableDrive& operator=(const UnwritableDrive&) = delete;

    static std::wstring File(const wchar_t* name) { return std::wstring(Name) + L"\\" + name; }

  private:
    static constexpr const wchar_t* Name = L"Q:";
    static constexpr const wchar_t* Beneath = L"Z:\\proc\\sys";

    /// Nobody may add a file (2); all else is allowed.
    static void MakeRefusing(const std::wstring& folder) {
        SECURITY_ATTRIBUTES security{sizeof security, nullptr, FALSE};
        ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P(D;;0x2;;;WD)(A;;FA;;;WD)", SDDL_REVISION_1,
                                                             &security.lpSecurityDescriptor, nullptr);
        CreateDirectoryW(folder.c_str(), &security);
        LocalFree(security.lpSecurityDescriptor);
    }

    std::wstring folder_;
};

TEST_F(NotesTest, AFolderThatTakesNothingIsTold) {
    const UnwritableDrive drive;
    ASSERT_EQ(CreateFileW(UnwritableDrive::File(L"proba.rtf").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                          0, nullptr),
              INVALID_HANDLE_VALUE);
    Open();
    Type(L"abc");
    EXPECT_TRUE(SaveTold(UnwritableDrive::File(L"nota.rtf")).starts_with(NotSaved));
    EXPECT_EQ(Text(), L"abc");
}

TEST_F(NotesTest, AReadOnlyNoteIsNotOverwritten) {
    Open();
    const std::wstring file = folder.File(L"nota.rtf");
    WriteFile(file, "old");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    Type(L"abc");
    EXPECT_TRUE(SaveTold(file).starts_with(NotSaved));
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(ReadFile(file), "old");
    EXPECT_THAT(folder.Names(), ElementsAre(L"nota.rtf"));
    EXPECT_EQ(Text(), L"abc");
}

/// A file as another program has it open.
class HeldFile {
  public:
    HeldFile(const std::wstring& name, DWORD sharing)
        : handle_(CreateFileW(name.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr)) {
        EXPECT_NE(handle_, INVALID_HANDLE_VALUE);
    }
    ~HeldFile() { CloseHandle(handle_); }
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;

  private:
    HANDLE handle_;
};

TEST_F(NotesTest, ANoteThatAnotherProgramHoldsIsNotOverwritten) {
    Open();
    const std::wstring file = folder.File(L"nota.rtf");
    WriteFile(file, "{\\rtf1 old}");
    Type(L"abc");
    {
        const HeldFile held(file, 0);
        EXPECT_TRUE(SaveTold(file).starts_with(NotSaved));
        EXPECT_TRUE(LoadTold(file, MessageIcon::Error).starts_with(NotLoaded));
    }
    EXPECT_EQ(ReadFile(file), "{\\rtf1 old}");
    EXPECT_THAT(folder.Names(), ElementsAre(L"nota.rtf"));
    EXPECT_EQ(Text(), L"abc");
}

TEST_F(NotesTest, ANoteWhoseNameAnotherProgramHoldsIsWrittenInItsPlace) {
    Open();
    const std::wstring file = folder.File(L"nota.rtf");
    WriteFile(file, "{\\rtf1 " + std::string(5000, 'x') + "}");
    Type(L"abc");
    {
        const HeldFile held(file, FILE_SHARE_READ | FILE_SHARE_WRITE);
        SaveAs(file);
    }
    EXPECT_TRUE(ReadFile(file).starts_with("{\\rtf1"));
    EXPECT_LT(ReadFile(file).size(), 1000U);
    EXPECT_THAT(folder.Names(), ElementsAre(L"nota.rtf"));
    NewNote();
    Load(file);
    EXPECT_EQ(Text(), L"abc");
}

TEST_F(NotesTest, ANoteKeepsItsAttributes) {
    Open();
    const std::wstring file = folder.File(L"nota.rtf");
    WriteFile(file, "old");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_HIDDEN);
    const DWORD before = GetFileAttributesW(file.c_str());
    Type(L"abc");
    SaveAs(file);
    EXPECT_EQ(GetFileAttributesW(file.c_str()), before);
    EXPECT_TRUE(ReadFile(file).starts_with("{\\rtf1"));
}

// What comes from outside.

std::string SampleNote() {
    std::string rtf =
        R"({\rtf1\ansi\ansicpg1250\deff0{\fonttbl{\f0\fnil\fcharset238 Arial;}{\f1 Times New Roman;}})"
        R"({\colortbl;\red255\green0\blue0;}{\*\generator Writer;}\pard\f0\fs20 )";
    for (int i = 0; i < 40; ++i)
        rtf += "{\\b line " + std::to_string(i) + "} \\'e3\\u537?{\\i\\cf1\\f1 text}\\par\r\n";
    return rtf + "}";
}

TEST_F(NotesTest, FilesThatGiveNoNoteAreToldAndNothingIsLost) {
    Open();
    Type(L"Text ");
    ClickButton(Bold);
    Type(L"vechi");
    const std::wstring file = folder.File(L"nota.rtf");
    const std::pair<std::string, const char*> corpus[] = {
        {"", "Fisierul ales nu este o nota RTF !"},
        {"This is no note.", "Fisierul ales nu este o nota RTF !"},
        {std::string("MZ\x90\0\3\0\0\0", 8), "Fisierul ales nu este o nota RTF !"},
        {SampleNote().substr(0, 60), "Fisierul ales este incomplet si nu mai poate fi citit !"},
        {"{\\rtf1 " + std::string(std::size_t{5} << 20, 'a') + "}", "Nota este prea mare !"},
    };
    for (const auto& [content, told] : corpus) {
        WriteFile(file, content);
        ASSERT_EQ(LoadTold(file, MessageIcon::Error), told);
        ASSERT_EQ(Text(), L"Text vechi");
        ASSERT_EQ(LookAt(0, 5).bold, 0);
        ASSERT_EQ(LookAt(5, 5).bold, 1);
    }
    EXPECT_TRUE(LoadTold(folder.File(L"nicaieri.rtf"), MessageIcon::Error).starts_with(NotLoaded));
    EXPECT_EQ(Text(), L"Text vechi");
    WriteFile(file, SampleNote());
    Load(file);
    EXPECT_TRUE(Text().starts_with(L"line 0 \x103\x219text\r\nline 1 "));
}

TEST_F(NotesTest, FilesThatLostTheirEndAreLoadedAsFarAsTheyGo) {
    Open();
    const std::wstring file = folder.File(L"nota.rtf");
    const std::string note = SampleNote();
    for (std::size_t length = 300; length < note.size(); length += 467) {
        WriteFile(file, note.substr(0, length));
        ASSERT_EQ(LoadTold(file, MessageIcon::Exclamation),
                  "Fisierul ales este incomplet. S-a incarcat numai inceputul notei !");
        ASSERT_TRUE(Text().starts_with(L"line 0 \x103\x219text\r\n")) << length;
    }
}

// What has been seen to harm editors, and notes.

TEST_F(NotesTest, ATabStopBeforeThePageDoesNoHarm) {
    Open();
    LoadText(R"({\rtf1\ansi\tx-1080 a\par})");
    EXPECT_EQ(Text(), L"a");
    ExpectNothingDrifts();
}

TEST_F(NotesTest, ExactLinesAreKept) {
    Open();
    LoadText(R"({\rtf1\pard\sl-320 a\par x\par})");
    EXPECT_EQ(Text(), L"a\r\nx");
    EXPECT_NE(ExpectNothingDrifts().find("\\sl-320"), std::string::npos);
}

TEST_F(NotesTest, NamesBeyondAllMeasureDoNoHarm) {
    Open();
    LoadText(R"({\rtf1{\fonttbl{\f0 )" + std::string(2000, 'N') + ";}}{\\stylesheet{\\s1 " +
             std::string(5000, 'S') + ";}}\\f0 a}");
    EXPECT_EQ(Text(), L"a");
    EXPECT_EQ(LookAt(0, 1).face, std::string(31, 'N'));
    ExpectNothingDrifts();
}

TEST_F(NotesTest, TablesOfFontsMayHaveBlanksAndLackNames) {
    Open();
    LoadText(R"({\rtf1{\fonttbl{\f0 Arial;} {\f1 Courier New;} {\f2;}}\f1 a\f2 b})");
    EXPECT_EQ(Text(), L"ab");
    EXPECT_EQ(LookAt(0, 1).face, "Courier New");
    EXPECT_EQ(LookAt(1, 1).face, "Arial");
    ExpectNothingDrifts();
}

TEST_F(NotesTest, TheTextOfFieldsIsKept) {
    Open();
    LoadText(R"({\rtf1 a {\field{\*\fldinst HYPERLINK "x"}{\fldrslt legatura}} b})");
    EXPECT_EQ(Text(), L"a legatura b");
    ExpectNothingDrifts();
}

TEST_F(NotesTest, LettersAreThoseOfTheDocumentsPage) {
    Open();
    LoadText(R"({\rtf1\ansi\ansicpg1250{\fonttbl{\f0\fnil Arial;}}\f0 \'e3\'ba\'fe})");
    EXPECT_EQ(Text(), L"\x103\x15f\x163");
    ExpectNothingDrifts();
}

TEST_F(NotesTest, ALongParagraphIsBrokenUp) {
    Open();
    std::wstring words;
    for (int i = 0; i < 4286; ++i)
        words += L"cuvant ";
    const std::wstring file = folder.File(L"proba.rtf");
    WriteFile(file, "{\\rtf1 " + win32::ToUtf8(words) + "}");
    const DWORD start = GetTickCount();
    EXPECT_EQ(LoadTold(file, MessageIcon::Exclamation),
              "Paragrafele foarte lungi din fisier au fost impartite in mai multe !");
    EXPECT_LT(GetTickCount() - start, 10000U) << "more where it stays one paragraph";
    std::wstring text = Text();
    EXPECT_GT(std::ranges::count(text, L'\n'), 12);
    std::erase(text, L'\r');
    std::erase(text, L'\n');
    EXPECT_EQ(text, words);
}

TEST_F(NotesTest, ObjectsDeletionsAndTablesComeAsText) {
    Open();
    LoadText(
        R"({\rtf1\ansi before{\object\objautlink{\*\objdata 0105000002}{\result  seen}} after{\deleted  gone}\bin3 }}}.\par)"
        R"(\trowd\clvertalt\cellx1000\cellx2000\intbl a\cell b\cell\row\pard end})");
    EXPECT_EQ(Text(), L"before seen after.\r\na\tb\r\nend");
    ExpectNothingDrifts();
}

TEST_F(NotesTest, WhatHarmsNobodyIsNotRefused) {
    Open();
    std::string note = "\xEF\xBB\xBF\r\n{\\rtf1\\fs0000000000000040 a";
    for (int i = 0; i < 5000; ++i)
        note += "{\\b ";
    note += std::string("b\0", 2) + std::string(5000, '}');
    note += "{\\pict\\pngblip " + std::string(std::size_t{19} << 20, '0') + "}c";
    const std::wstring file = folder.File(L"nota.rtf");
    WriteFile(file, note + "}");
    EXPECT_EQ(LoadTold(file, MessageIcon::Exclamation),
              "Unele imagini din fisier nu pot fi pastrate si lipsesc din nota !");
    EXPECT_EQ(Text(), L"abc");
    EXPECT_EQ(LookAt(0, 1).points, 20);
    ExpectNothingDrifts();
}

TEST_F(NotesTest, FormatsOfParagraphsAndCharactersDoNotDrift) {
    Open();
    LoadText(
        R"({\rtf1\ansi{\fonttbl{\f0 Arial;}{\f1 Times New Roman;}{\f2\fcharset2 Symbol;}})"
        R"({\colortbl;\red200\green0\blue0;\red255\green255\blue0;})"
        R"(\pard\qc\li720\ri360\fi-360\sb120\sa240\tx900\tx1800\f0\fs20 unu\tab\b doi\b0\i\cf1 trei\i0\cf0\par)"
        R"(\pard{\pntext\f2\'b7\tab}{\*\pn\pnlvlblt\pnf2\pnindent360{\pntxtb\'b7}}\fi-360\li720 patru\par)"
        R"({\pntext\f2\'b7\tab}\highlight2 cinci\highlight0\par\pard\fs40\par)"
        R"(\qr\sl400\f1\fs24 m{\super 2} H{\sub 2}O {\strike a}{\ul b}\line {\f2\'b7}\u537?\par})");
    const std::string file = ExpectNothingDrifts();
    for (const char* format :
         {R"(\pard\qc\fi-360\li720\ri360\sb120\sa240\tx900\tx1800)", R"({\*\pn\pnlvlblt)", "\\fi-360\\li720",
          R"(\pard\qr\sl400)", "\\super", "\\sub", "\\strike", "\\ul", "\\line ", "\\u-3913\\'b7", "\\u537?",
          R"(\red200\green0\blue0;)", "\\highlight", "\\fs40"})
        EXPECT_NE(file.find(format), std::string::npos) << format << " in " << file;
}

TEST_F(NotesTest, ALongNoteIsKeptWhole) {
    Open();
    std::string note = "{\\rtf1\\ansi ";
    for (int i = 0; i < 3000; ++i)
        note += "line " + std::to_string(i) + " of a long note that has many of them\\par\r\n";
    const std::wstring file = folder.File(L"nota.rtf");
    WriteFile(file, note + "}");
    Load(file);
    const std::wstring text = Text();
    ASSERT_GT(text.size(), 130000U) << "beyond what an edit field holds by default";
    SaveAs(file);
    NewNote();
    Load(file);
    EXPECT_EQ(Text(), text);
}

TEST_F(NotesTest, WhatWasTypedCanBeUndone) {
    Open();
    Type(L"abc");
    Select(0, 3);
    ClickButton(Bold);
    EXPECT_EQ(LookAt(0, 3).bold, 1);
    Press('Z', {VK_CONTROL});
    EXPECT_EQ(LookAt(0, 3).bold, 0);
    EXPECT_EQ(Text(), L"abc");
}

class NotesInDialogHostTest : public NotesTest {
  protected:
    NotesInDialogHostTest() : NotesTest(LoopKind::Dialog) {}
};

TEST_F(NotesInDialogHostTest, KeysAreTextInAHostThatTreatsWindowsAsDialogs) {
    Open();
    Type(L"a");
    Press(VK_RETURN);
    Press(VK_TAB);
    Press(VK_LEFT);
    Type(L"b");
    EXPECT_EQ(Text(), L"a\r\nb\t");
    Press(VK_ESCAPE);
    EXPECT_TRUE(AwaitClosed("Notes"));
}

}  // namespace
}  // namespace tavrin::e2e
