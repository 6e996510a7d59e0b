// What it costs the note pad to load and to save 1 MB of formatted text, against the platform's bare control
// that streams the same bytes from and to a file: medians of seven rounds, taken in turns. Ends with an error
// where one costs more than 1.1 times the bare control.
//
// What is compared is worth the same. The bare control, too, saves to the disk in a file beside the old one,
// which takes the old one's place: with the old one overwritten a failure would cost the note. And it writes
// in the encoding that the note pad asks for: where the control's own one loses letters, that is another one.

#include <windows.h>

#include <richedit.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/controls/rich_text_box.h"
#include "forms/model/form.h"
#include "notes/rtf_reader.h"
#include "notes/rtf_writer.h"
#include "sample_note.h"
#include "win32/base/text.h"
#include "win32/desktop/desktop.h"
#include "win32/peers/rich_edit_stream.h"

namespace {

namespace forms = tavrin::forms;
using namespace tavrin::notes;

constexpr std::size_t NoteSize = std::size_t{1} << 20;
constexpr std::size_t LongestFile = NoteSize * 2;
constexpr int Rounds = 7;
constexpr int SavesOfARound = 9;  // a disk's answers differ more than an editor's
constexpr double Worst = 1.1;

class NoteForm : public forms::Form {
  public:
    explicit NoteForm(forms::Desktop& desktop)
        : Form(desktop, "Note", "Note", forms::BorderStyle::FixedDialog) {
        SetClientSize({6000, 6000});
    }
    forms::RichTextBox note{*this, "note", {0, 0, 6000, 6000}};
};

std::wstring PlaceFor(const wchar_t* name) {
    std::array<wchar_t, MAX_PATH + 1> folder{};
    GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
    return std::wstring(folder.data()) + name;
}

HANDLE Open(const std::wstring& name, DWORD access, DWORD disposition) {
    return CreateFileW(name.c_str(), access, 0, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
}

DWORD CALLBACK ReadFrom(DWORD_PTR file, LPBYTE buffer, LONG size, LONG* read) {
    return ReadFile(reinterpret_cast<HANDLE>(file), buffer, static_cast<DWORD>(size),
                    reinterpret_cast<LPDWORD>(read), nullptr) != FALSE
               ? 0
               : GetLastError();
}

DWORD CALLBACK WriteTo(DWORD_PTR file, LPBYTE buffer, LONG size, LONG* written) {
    return WriteFile(reinterpret_cast<HANDLE>(file), buffer, static_cast<DWORD>(size),
                     reinterpret_cast<LPDWORD>(written), nullptr) != FALSE
               ? 0
               : GetLastError();
}

/// The bare control of the same size and font, between the file and nothing else. The font counts: the one
/// that Wine gives to a control is bold, which spares it every change between bold and plain.
class BareControl {
  public:
    BareControl()
        : window_(CreateWindowExW(0, L"RICHEDIT50W", L"",
                                  WS_POPUP | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL, 0, 0,
                                  400, 400, nullptr, nullptr, nullptr, nullptr)) {
        encoding_ = LosesLetters() ? SF_USECODEPAGE | CP_UTF8 << 16 : 0;
        SendMessageW(window_, EM_EXLIMITTEXT, 0, 0x7FFFFFFE);
        const CHARFORMAT2W font = PlainFont();
        SendMessageW(window_, EM_SETCHARFORMAT, SCF_DEFAULT, reinterpret_cast<LPARAM>(&font));
        SendMessageW(window_, EM_SETCHARFORMAT, SCF_ALL, reinterpret_cast<LPARAM>(&font));
    }
    ~BareControl() { DestroyWindow(window_); }
    BareControl(const BareControl&) = delete;
    BareControl& operator=(const BareControl&) = delete;

    void Load(const std::wstring& name) const {
        Stream(EM_STREAMIN, Open(name, GENERIC_READ, OPEN_EXISTING), ReadFrom);
    }
    void Save(const std::wstring& name) const {
        const std::wstring beside = name + L".new";
        Stream(EM_STREAMOUT, Open(beside, GENERIC_WRITE, CREATE_NEW), WriteTo);
        ReplaceFileW(name.c_str(), beside.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                     nullptr);
    }

  private:
    static CHARFORMAT2W PlainFont() {
        CHARFORMAT2W font{};
        font.cbSize = sizeof font;
        font.dwMask = CFM_FACE | CFM_CHARSET | CFM_SIZE | CFM_BOLD | CFM_ITALIC | CFM_UNDERLINE;
        font.bCharSet = DEFAULT_CHARSET;
        font.yHeight = 200;
        std::wstring(L"Arial").copy(font.szFaceName, LF_FACESIZE - 1);
        return font;
    }

    bool LosesLetters() const {
        SetWindowTextW(window_, L"\x103");
        const std::string written = tavrin::win32::StreamRtfOut(window_, tavrin::win32::RtfEncoding::Native);
        SetWindowTextW(window_, L"");
        return written.find("\\u259") == std::string::npos;
    }

    void Stream(UINT message, HANDLE file, EDITSTREAMCALLBACK callback) const {
        EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(file), 0, callback};
        SendMessageW(window_, message, message == EM_STREAMOUT ? SF_RTF | encoding_ : SF_RTF,
                     reinterpret_cast<LPARAM>(&stream));
        if (message == EM_STREAMOUT) FlushFileBuffers(file);  // on the disk, as the note pad's
        CloseHandle(file);
    }

    HWND window_;
    UINT encoding_ = 0;
};

double Milliseconds(const std::function<void()>& action) {
    LARGE_INTEGER frequency{};
    LARGE_INTEGER start{};
    LARGE_INTEGER end{};
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&start);
    action();
    QueryPerformanceCounter(&end);
    return 1000.0 * static_cast<double>(end.QuadPart - start.QuadPart) /
           static_cast<double>(frequency.QuadPart);
}

double Median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// The note pad's way from a file into the control and back.
class NotePad {
  public:
    explicit NotePad(forms::Desktop& desktop)
        : files_(desktop.PlatformFiles()), form_(std::make_shared<NoteForm>(desktop)) {
        form_->Show();
    }
    ~NotePad() { form_->Unload(); }
    NotePad(const NotePad&) = delete;
    NotePad& operator=(const NotePad&) = delete;

    void Load(const std::string& name) {
        form_->note.Load(WriteRtf(ReadRtf(files_.Read(name, LongestFile)).note));
    }
    void Save(const std::string& name) {
        const bool exchanged = form_->note.ExchangesIndents();
        const RtfReading reading =
            ReadRtf(form_->note.Save(), exchanged ? RtfIndents::Exchanged : RtfIndents::Standard,
                    LongParagraphs::Kept);
        files_.Replace(name, WriteRtf(reading.note));
    }

  private:
    forms::Files& files_;
    std::shared_ptr<NoteForm> form_;
};

struct Times {
    std::vector<double> load;
    std::vector<double> save;
};

/// One round, in windows of its own. Saves are short, so each of ours is followed by one of theirs: what else
/// the machine does meets both.
void Measure(tavrin::win32::Desktop& desktop, const std::string& name, const std::wstring& bareName,
             Times& ours, Times& theirs) {
    NotePad pad(desktop);
    ours.load.push_back(Milliseconds([&] { pad.Load(name); }));
    const BareControl bare;
    theirs.load.push_back(Milliseconds([&] { bare.Load(bareName); }));
    for (int i = 0; i < SavesOfARound; ++i) {
        ours.save.push_back(Milliseconds([&] { pad.Save(name); }));
        theirs.save.push_back(Milliseconds([&] { bare.Save(bareName); }));
    }
}

bool Report(const char* what, const std::vector<double>& ours, const std::vector<double>& theirs) {
    const double ratio = Median(ours) / Median(theirs);
    std::printf("%s 1 MB: note pad %.1f ms, bare control %.1f ms, ratio %.3f (at most %.2f) %s\n", what,
                Median(ours), Median(theirs), ratio, Worst, ratio <= Worst ? "ok" : "TOO MUCH");
    return ratio <= Worst;
}

}  // namespace

int main() {
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    tavrin::win32::Desktop desktop(GetModuleHandleW(nullptr));
    const std::wstring bareName = PlaceFor(L"tavrin-bench-bare.rtf");
    const std::string name = tavrin::win32::ToUtf8(PlaceFor(L"tavrin-bench.rtf"));
    Times ours;
    Times theirs;
    for (int round = 0; round <= Rounds; ++round) {
        // What the other round has saved is not what is compared.
        desktop.PlatformFiles().Replace(name, tavrin::bench::SampleNote(NoteSize));
        desktop.PlatformFiles().Replace(tavrin::win32::ToUtf8(bareName), tavrin::bench::SampleNote(NoteSize));
        if (round == 1) ours = theirs = {};  // libraries were loaded in the first one
        Measure(desktop, name, bareName, ours, theirs);
    }
    DeleteFileW(bareName.c_str());
    DeleteFileW(tavrin::win32::ToWide(name).c_str());
    bool right = Report("loading", ours.load, theirs.load);
    right &= Report("saving", ours.save, theirs.save);
    return right ? 0 : 1;
}
