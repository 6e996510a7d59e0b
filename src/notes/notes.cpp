#include "notes/notes.h"

#include <exception>
#include <new>
#include <optional>
#include <string>

#include "data/error.h"
#include "notes/messages.h"
#include "notes/rtf_writer.h"

namespace tavrin::notes {

namespace {

namespace key = forms::key;
namespace message = shell::message;
using forms::CharacterFormat;
using forms::ToolLook;
using Answer = shell::Application::Answer;

constexpr int NoButton = -1;

/// The longest file that is read, in bytes. Most of such a one are pictures' digits.
constexpr std::size_t LongestFile = std::size_t{128} << 20;

constexpr unsigned HideReadOnly = 0x4;
constexpr unsigned NoChangeOfFolder = 0x8;
constexpr unsigned PathMustExist = 0x800;
constexpr unsigned FileFlags = HideReadOnly | NoChangeOfFolder | PathMustExist;

constexpr unsigned ScreenAndPrinterFonts = 0x3;
constexpr unsigned Effects = 0x100;
constexpr unsigned FontFlags = ScreenAndPrinterFonts | Effects;

/// What Ctrl and a key press, NoButton for most.
int ButtonOfShortcut(int keyCode) {
    switch (keyCode) {
        case 'N':
        case 'O':
            return NotesDesign::NewOrOpen;
        case 'S':
            return NotesDesign::Save;
        case 'D':
            return NotesDesign::ChooseFont;
        case 'B':
            return NotesDesign::Bold;
        case 'I':
            return NotesDesign::Italic;
        case 'U':
            return NotesDesign::Underline;
        default:
            return NoButton;
    }
}

/// A window that takes no input for a while, and takes it again whatever has happened.
class DisabledScope {
  public:
    explicit DisabledScope(forms::Form& form) : form_(form) { form_.SetEnabled(false); }
    ~DisabledScope() { form_.SetEnabled(true); }
    DisabledScope(const DisabledScope&) = delete;
    DisabledScope& operator=(const DisabledScope&) = delete;

  private:
    forms::Form& form_;
};

/// Runs an action whose failure ends it and is not worth a message.
template <class Action>
void Quietly(const Action& action) {
    try {
        action();
    } catch (const data::Error&) {
        // What went before stands.
    } catch (const std::bad_alloc&) {
        // A dialog that the memory at hand does not suffice for is one that cannot be had.
    }
}

/// What an action has to tell, or that it failed, with the reason on a line of its own. It stands in a
/// function by itself as GCC 12 otherwise takes the notices of a failure for overwritten by those of the
/// action that never came to return any.
template <class Action>
Notices NoticesOf(const char* failure, std::string& reason, const Action& action) {
    try {
        return action();
    } catch (const data::Error& error) {
        reason = "\r\n" + error.Description();
    } catch (const std::bad_alloc&) {
        reason = "\r\n" + data::CurrentError().Description();
    }
    return {{{failure, message::Error}}};
}

/// What is said of a file that gives no note.
const char* ProblemOf(RtfOutcome outcome) {
    switch (outcome) {
        case RtfOutcome::NoNote:
            return text::NoNote;
        case RtfOutcome::NothingLeft:
            return text::NothingLeft;
        case RtfOutcome::TooLarge:
            return text::TooLarge;
        case RtfOutcome::Whole:
        case RtfOutcome::Cut:
            break;
    }
    return nullptr;
}

}  // namespace

Notes::Notes(shell::Application& application)
    : NotesDesign(application.Desktop()), application_(application), lastButton_(NoButton) {
    ConnectEvents();
}

void Notes::ConnectEvents() {
    using forms::Control;
    using forms::MouseInput;
    ImgBouton.OnEach(&Control::onClick, [this](int index) { ImgBouton_Click(index); });
    ImgBouton.OnEach(&Control::onMouseDown,
                     [this](int index, const MouseInput& input) { ImgBouton_MouseDown(index, input); });
    ImgBouton.OnEach(&Control::onMouseMove,
                     [this](int index, const MouseInput&) { ImgBouton_MouseMove(index); });
    ImgBouton.OnEach(&Control::onMouseUp,
                     [this](int index, const MouseInput&) { ShowTool(index, ToolLook::Raised); });
    ImgBouton.OnEach(&Control::onMouseLeave, [this](int index) { ImgBouton_MouseLeave(index); });
    PctBarreFond.onMouseMove = [this](const MouseInput&) { RestTools(); };
    txtNota.onSelChange = [this] { ShowSelectionFormat(); };
}

// Life.

void Notes::ShowForm() {
    Load();
    Show();
}

void Notes::OnLoad() {
    application_.CreateMessageService();
    PlaceControls();
    PlaceOnScreen();
    SetPictures();
}

void Notes::OnActivate() {
    KeepOnTop();
    txtNota.SetFocus();
}

void Notes::OnKeyDown(int& keyCode, forms::Modifiers modifiers) {
    if (keyCode == key::Escape) {
        keyCode = key::Swallowed;
        Unload();
    } else if (modifiers.control && !modifiers.alt) {
        const int button = ButtonOfShortcut(keyCode);
        if (button == NoButton) return;
        keyCode = key::Swallowed;
        ImgBouton[button].Click();
    }
}

// The bar under the mouse.

void Notes::ShowTool(int index, ToolLook look) {
    ImgBouton[index].SetLook(look);
}

void Notes::ImgBouton_MouseDown(int index, const forms::MouseInput& input) {
    if (input.button == forms::MouseButton::Left) ShowTool(index, ToolLook::Sunken);
}

void Notes::ImgBouton_MouseMove(int index) {
    if (index == lastButton_) return;
    RestTools();
    lastButton_ = index;
    ShowTool(index, ToolLook::Raised);
}

void Notes::ImgBouton_MouseLeave(int index) {
    // The platform may tell of the button that was left after it has told of the one that was reached.
    if (index == lastButton_) RestTools();
}

void Notes::OnMouseMove(const forms::MouseInput& /*input*/) {
    RestTools();
}

void Notes::RestTools() {
    lastButton_ = NoButton;
    for (int i = 0; i < ButtonCount; ++i)
        ShowTool(i);
}

// The actions.

void Notes::ImgBouton_Click(int index) {
    if (!Enabled()) return;  // an action is under way; only an assistive tool can come here
    {
        const DisabledScope scope(*this);
        Perform(index);
    }
    // A dialog that goes leaves the keyboard to some other window.
    if (IsLoaded()) txtNota.SetFocus();
}

void Notes::Perform(int index) {
    switch (index) {
        case NewOrOpen:
            return NewOrOpenNote();
        case Save:
            return ReportingFailure(text::NotSaved, [this] { return SaveNote(); });
        case ChooseFont:
            return Quietly([this] { ChooseSelectionFont(); });
        case ChooseColor:
            return Quietly([this] { ChooseSelectionColor(); });
        case Bold:
            return Toggle(&CharacterFormat::bold);
        case Italic:
            return Toggle(&CharacterFormat::italic);
        case Underline:
            return Toggle(&CharacterFormat::underline);
        case Leave:
            return Unload();
        default:
            break;
    }
}

void Notes::NewOrOpenNote() {
    switch (application_.Ask(*this, text::NewNoteQuestion, Caption())) {
        case Answer::Yes:
            return txtNota.SetText({});
        case Answer::No:
            return ReportingFailure(text::NotLoaded, [this] { return OpenNote(); });
        case Answer::Withdrawn:
            break;
    }
}

Notices Notes::OpenNote() {
    dlgCommonDialog.flags = FileFlags;
    dlgCommonDialog.dialogTitle = text::OpenTitle;
    dlgCommonDialog.filter = text::NoteFilter;
    if (!dlgCommonDialog.ShowOpen()) return {};
    OwnerDesktop().ExpectWait();
    return LoadNote(OwnerDesktop().PlatformFiles().Read(dlgCommonDialog.fileName, LongestFile));
}

Notices Notes::LoadNote(const std::string& file) {
    const RtfReading reading = ReadRtf(file);
    if (const char* const problem = ProblemOf(reading.outcome)) return {{{problem, message::Error}}};
    const std::string before = txtNota.Save();
    try {
        txtNota.Load(WriteRtf(reading.note));
    } catch (const std::exception&) {
        PutBack(before);
        throw;
    }
    const bool cut = reading.outcome == RtfOutcome::Cut;
    return {{{cut ? text::CutNote : nullptr},
             {reading.paragraphsDivided ? text::ParagraphsDivided : nullptr},
             {ProblemOfPictures(reading)}}};
}

/// The text that the editor has written before, in place of what it could not read to its end.
void Notes::PutBack(const std::string& written) {
    try {
        const RtfReading reading = ReadWritten(written);
        txtNota.Load(reading.outcome == RtfOutcome::Whole ? WriteRtf(reading.note) : written);
    } catch (const std::exception&) {
        throw data::Error(data::error_number::InvalidFile, text::NotKept);
    }
}

/// Not every editor keeps pictures of every kind, and what it does not keep is not saved again. The note
/// stands by now, whatever happens here.
const char* Notes::ProblemOfPictures(const RtfReading& reading) const {
    if (reading.picturesLeftOut) return text::PicturesNotShown;
    if (reading.note.pictures.empty()) return nullptr;
    try {
        const RtfReading kept = ReadWritten(txtNota.Save());
        const bool lacksSome = kept.note.pictures.size() < reading.note.pictures.size();
        if (kept.outcome == RtfOutcome::Whole) return lacksSome ? text::PicturesNotShown : nullptr;
    } catch (const std::exception&) {
        // Nobody knows, then.
    }
    return text::PicturesUnknown;
}

/// What is in the editor already is as long as the user has made it.
RtfReading Notes::ReadWritten(const std::string& written) const {
    return ReadRtf(written, txtNota.ExchangesIndents() ? RtfIndents::Exchanged : RtfIndents::Standard,
                   LongParagraphs::Kept);
}

Notices Notes::SaveNote() {
    dlgCommonDialog.flags = FileFlags;
    dlgCommonDialog.dialogTitle = text::SaveTitle;
    dlgCommonDialog.filter = text::NoteFilter;
    if (!dlgCommonDialog.ShowSave()) return {};
    OwnerDesktop().ExpectWait();
    const RtfReading reading = ReadWritten(txtNota.Save());
    if (reading.outcome != RtfOutcome::Whole) {
        const bool tooLarge = reading.outcome == RtfOutcome::TooLarge;
        throw data::Error(data::error_number::InvalidFile, tooLarge ? text::TooLarge : text::EditorFailed);
    }
    Replace(dlgCommonDialog.fileName, WriteRtf(reading.note));
    return {{{reading.picturesLeftOut ? text::PicturesNotSaved : nullptr}}};
}

/// Of a file that has lost its old content as well more is told than that nothing was saved.
void Notes::Replace(const std::string& name, const std::string& file) {
    try {
        OwnerDesktop().PlatformFiles().Replace(name, file);
    } catch (const forms::DamagedFile& error) {
        const std::string reason = text::FileDamaged + ("\r\n" + error.Description());
        throw data::Error(error.Number(), reason);
    }
}

/// A window that was closed while an earlier message was up has no more to say.
void Notes::Tell(const std::string& prompt, int icon) {
    if (IsLoaded()) application_.ShowMessage(prompt, icon, message::Ok, Caption());
}

/// Runs an action that loads or saves. Where it fails the user is told so, and of what the platform says.
/// What there is to tell is told once the action has ended: a message that fails makes no failure of it.
template <class Action>
void Notes::ReportingFailure(const char* failure, const Action& action) {
    std::string reason;
    const Notices notices = NoticesOf(failure, reason, action);
    for (const Notice& each : notices) {
        if (each.prompt != nullptr) Tell(each.prompt + reason, each.icon);
    }
}

void Notes::ChooseSelectionFont() {
    // Struck-through text is the one property that the dialog does not take from the selection: it offers
    // what was chosen last.
    const bool strikeThru = dlgCommonDialog.font.strikeThru.value_or(false);
    dlgCommonDialog.flags = FontFlags;
    dlgCommonDialog.font = txtNota.SelectionFormat();
    dlgCommonDialog.font.strikeThru = strikeThru;
    dlgCommonDialog.color = dlgCommonDialog.font.color.value_or(dlgCommonDialog.color);
    if (dlgCommonDialog.ShowFont()) txtNota.FormatSelection(dlgCommonDialog.font);
}

void Notes::ChooseSelectionColor() {
    if (dlgCommonDialog.ShowColor()) txtNota.FormatSelection({.color = dlgCommonDialog.color});
}

void Notes::Toggle(std::optional<bool> CharacterFormat::*property) {
    // A selection that has it only in part gets it as a whole.
    CharacterFormat change;
    change.*property = !(txtNota.SelectionFormat().*property).value_or(false);
    txtNota.FormatSelection(change);
}

void Notes::ShowSelectionFormat() {
    const CharacterFormat format = txtNota.SelectionFormat();
    ImgBouton[Bold].SetChecked(format.bold.value_or(false));
    ImgBouton[Italic].SetChecked(format.italic.value_or(false));
    ImgBouton[Underline].SetChecked(format.underline.value_or(false));
}

}  // namespace tavrin::notes
