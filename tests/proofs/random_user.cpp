#include "proofs/random_user.h"

#include <array>
#include <cstdio>
#include <string_view>
#include <utility>

#include "forms/controls/combo_box.h"
#include "forms/controls/date_picker.h"
#include "forms/controls/text_box.h"
#include "rates/curs_valutar.h"
#include "support/fake_rich_text.h"
#include "support/recording_surface.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;

constexpr auto KeyCodes = std::to_array<int>({key::Enter,
                                              key::Enter,
                                              key::Escape,
                                              key::Tab,
                                              key::Tab,
                                              key::Up,
                                              key::Down,
                                              key::Left,
                                              key::Right,
                                              key::Home,
                                              key::End,
                                              key::Space,
                                              key::PageUp,
                                              key::PageDown,
                                              key::Delete,
                                              key::Backspace,
                                              key::F4,
                                              112,
                                              0,
                                              255,
                                              key::Swallowed,
                                              18,
                                              93,
                                              key::Down,
                                              'S',
                                              'O',
                                              'B'});

constexpr std::array<std::string_view, 24> Characters = {"0",  "1",  "2",  "3", "5", "7", "9", "0",
                                                         "\r", "\b", "\t", " ", "+", "-", "*", "/",
                                                         "%",  "=",  ",",  ".", "A", "]", "'", "\xC8\x99"};

constexpr std::array<std::string_view, 10> Pasted = {
    "", " ", "-5", "12345678901234567890", "EUR", "O'Neil", "a]b", "1,234.5", "\xF0\x9F\x98\x80", "%_[a-z]"};

constexpr std::array<const char*, 6> Writes = {
    "DELETE FROM Agenda",
    "DELETE FROM [Curs Valutar]",
    "INSERT INTO Agenda (Nume, Prenume) VALUES ('Nou', 'Om')",
    "DELETE FROM [Curs Valutar] WHERE Data > '05-12-2003'",
    "UPDATE [Curs Valutar] SET EUR = NULL",
    "UPDATE AdmQuadrel.dbo.Societati SET Curs = '12-31-2003'",
};

constexpr std::array<std::string_view, 4> FileNames = {"nota.rtf", "alta.rtf", "altele.txt", ""};

template <class Array>
auto Pick(const Array& from, unsigned number) {
    return from[number % from.size()];
}

forms::MouseButton ButtonOf(unsigned number) {
    constexpr std::array buttons = {forms::MouseButton::Left, forms::MouseButton::Left,
                                    forms::MouseButton::None, forms::MouseButton::Right};
    return Pick(buttons, number);
}

forms::Point PointIn(const forms::Control& control, unsigned number) {
    const forms::Rect& bounds = control.Bounds();
    const auto part = [](int length, unsigned sixteenths) {
        return length * static_cast<int>(sixteenths) / 16;
    };
    return {part(bounds.width, number % 17), part(bounds.height, number / 17 % 17)};
}

bool TakesFocus(const forms::Control& control) {
    return control.CanTakeFocus();
}

bool OffersChoice(const forms::Control& control) {
    const forms::ControlKind kind = control.Kind();
    return kind == forms::ControlKind::ComboBox || kind == forms::ControlKind::DatePicker ||
           kind == forms::ControlKind::RichText;
}

void PaintAll(const forms::Container& container, forms::Surface& surface) {
    for (const forms::Control* control : container.Controls()) {
        if (!control->Visible()) continue;
        control->Draw(surface);
        static_cast<void>(control->Accessible());
        const int children = std::min(control->AccessibleChildCount(), 20);
        for (int child = 0; child < children; ++child)
            static_cast<void>(control->AccessibleChild(child));
        static_cast<void>(control->AccessibleSelectedChild());
        if (const auto* inner = dynamic_cast<const forms::Container*>(control)) PaintAll(*inner, surface);
    }
}

}  // namespace

std::string RandomUser::Run(std::span<const RandomEvent> events) {
    events_ = events;
    next_ = 0;
    nested_ = 0;
    depth_ = 0;
    session_.Restart();
    session_.whileShowing = [this] { Nested(); };
    session_.desktop.whileReporting = [this] { Nested(); };
    session_.Apel();
    std::string complaint;
    while (next_ < events_.size() && complaint.empty())
        complaint = Step();
    RestartPlan();
    figures.reports += session_.desktop.reports.size();
    figures.messages += session_.messages.size();
    session_.whileShowing = nullptr;
    session_.desktop.whileReporting = nullptr;
    if (!complaint.empty()) return complaint;
    session_.LeaveAll();
    complaint = session_.ComplaintAfterLeaving();
    return complaint.empty() ? complaint : complaint + " after leaving";
}

std::string RandomUser::Step() {
    // A host whose user has left everything is of no further interest until it calls again.
    if (session_.desktop.Forms().empty()) session_.Apel();
    const std::size_t open = session_.desktop.Forms().size();
    Do(events_[next_++]);
    const std::size_t openNow = session_.desktop.Forms().size();
    if (openNow > open) figures.openings += openNow - open;
    return session_.Complaint();
}

/// A message is up, which keeps the user from the windows by itself or does not. Then the user comes back.
void RandomUser::Nested() {
    constexpr int deepest = 2;
    const unsigned count = std::exchange(nested_, 0);
    if (count == 0 || depth_ >= deepest) return;
    ++depth_;
    forms::Form* const beneath = session_.desktop.ActiveForm();
    const std::string name = beneath != nullptr ? beneath->Name() : std::string();
    for (unsigned i = 0; i < count && next_ < events_.size(); ++i)
        Do(events_[next_++]);
    --depth_;
    // Another window of that name may have come in its place.
    if (forms::Form* form = session_.Window(name); form != nullptr && form == beneath)
        session_.desktop.ActivateByUser(form);
}

forms::Form* RandomUser::PickWindow(unsigned number) const {
    const auto& open = session_.desktop.Forms();
    if (open.empty()) return nullptr;
    return open[number % open.size()];
}

forms::Control* RandomUser::PickControl(const RandomEvent& event,
                                        bool (*wanted)(const forms::Control&)) const {
    const forms::Form* form = PickWindow(event.choice);
    if (form == nullptr || !session_.desktop.IsWindowEnabled(*form)) return nullptr;
    std::vector<forms::Control*> controls = form->AllControls();
    std::erase_if(controls, [](const forms::Control* control) { return !control->IsEffectivelyVisible(); });
    constexpr unsigned anyInEight = 1;
    if (event.detail % 8 >= anyInEight) {
        std::vector<forms::Control*> liked = controls;
        std::erase_if(liked, [&](const forms::Control* control) { return !wanted(*control); });
        if (!liked.empty()) controls = std::move(liked);
    }
    return controls.empty() ? nullptr : controls[event.detail / 8 % controls.size()];
}

void RandomUser::Do(const RandomEvent& event) {
    ++figures.events;
    if (verbose) std::fprintf(stderr, "  %s\n", Describe(event).c_str());
    forms::Form* const active = session_.desktop.ActiveForm();
    const bool typing = active != nullptr && session_.desktop.IsWindowEnabled(*active);
    switch (event.kind) {
        case EventKind::Key:
            if (typing) DoKey(event);
            break;
        case EventKind::Character:
            if (typing) session_.Type(Pick(Characters, event.choice));
            break;
        case EventKind::Click:
        case EventKind::DoubleClick:
            DoClick(event);
            break;
        case EventKind::MousePart:
            DoMousePart(event);
            break;
        case EventKind::Choose:
            DoChoose(event);
            break;
        case EventKind::Paste:
            if (typing) session_.Paste(Pick(Pasted, event.choice));
            break;
        case EventKind::Accelerator:
            if (typing) session_.keyboard.Accelerator(U"AMSCRIQ"[event.choice % 7]);
            break;
        case EventKind::Activate:
            session_.desktop.ActivateByUser(event.choice % 8 == 0 ? nullptr : PickWindow(event.choice / 8));
            break;
        case EventKind::Close:
            DoClose(event);
            break;
        case EventKind::Apel:
            DoApel(event);
            break;
        case EventKind::Fault:
            DoFault(event);
            break;
        case EventKind::EndFaults:
            RestartPlan();
            break;
        case EventKind::Answer:
            if (session_.answers.size() < 4) session_.answers.push_back(event.choice % 2 == 0);
            break;
        case EventKind::Dialog:
            DoDialog(event);
            break;
        case EventKind::Nest:
            nested_ = event.choice % 8;
            session_.desktop.messagesAreModal = event.detail % 2 == 0;
            break;
        case EventKind::Paint:
            Paint(event);
            break;
        case EventKind::Database:
            DoDatabase(event);
            break;
        case EventKind::Operation:
            if (auto* list = session_.application.Loaded<rates::CursValutar>();
                list != nullptr && list->AcceptsInput()) {
                session_.desktop.Guard([&] { list->cmdAction_Click(event.choice % 7); });
            }
            break;
        case EventKind::Count:
            break;
    }
}

/// A disabled window's close box does nothing; other programs may close it all the same.
void RandomUser::DoClose(const RandomEvent& event) {
    constexpr unsigned outsideInSixteen = 1;
    forms::Form* form = PickWindow(event.choice);
    if (form == nullptr) return;
    if (session_.desktop.IsWindowEnabled(*form) || event.detail % 16 < outsideInSixteen) form->HandleClose();
}

void RandomUser::DoKey(const RandomEvent& event) {
    const forms::Modifiers modifiers{event.detail % 8 == 1, event.detail % 16 == 2, event.detail % 16 == 3};
    session_.keyboard.Press(Pick(KeyCodes, event.choice), modifiers);
}

void RandomUser::DoClick(const RandomEvent& event) {
    const forms::Desktop::DispatchScope scope(session_.desktop);
    forms::Control* control = PickControl(event, TakesFocus);
    if (control == nullptr) return;
    const forms::Point at = PointIn(*control, event.detail ^ event.choice);
    forms::Form& form = control->OwnerForm();
    session_.desktop.ActivateByUser(&form);
    if (!form.IsLoaded() || !session_.desktop.IsWindowEnabled(form)) return;
    ClickWithMouse(*control, at);
    if (event.kind == EventKind::DoubleClick && form.IsLoaded() && session_.desktop.IsWindowEnabled(form))
        control->HandleDblClick({forms::MouseButton::Left, at, {}});
}

void RandomUser::DoMousePart(const RandomEvent& event) {
    forms::Control* control = PickControl(event, TakesFocus);
    if (control == nullptr) return;
    const forms::Desktop::DispatchScope scope(session_.desktop);
    const unsigned part = event.detail ^ event.choice;
    const forms::MouseInput input{ButtonOf(part), PointIn(*control, part), {}};
    switch (part % 8) {
        case 0:
            session_.desktop.ActivateByUser(&control->OwnerForm());
            if (control->OwnerForm().IsLoaded()) control->HandleMouseDown(input);
            break;
        case 1:
            control->HandleMouseUp(input);
            break;
        case 2:
            control->HandleMouseLeave();
            break;
        case 3:
            control->HandleCaptureLost();
            break;
        case 4:
            control->HandleWheel(static_cast<int>(part % 5) - 2);
            break;
        case 5:
            control->OwnerForm().HandleMouseDown(input);
            break;
        default:
            control->HandleMouseMove(input);
            break;
    }
}

void RandomUser::DoChoose(const RandomEvent& event) {
    forms::Control* control = PickControl(event, OffersChoice);
    if (control == nullptr || !control->IsEffectivelyEnabled()) return;
    const forms::Desktop::DispatchScope scope(session_.desktop);
    const unsigned number = event.detail ^ event.choice;
    if (auto* list = dynamic_cast<forms::ComboBox*>(control)) {
        list->HandleDropped(number % 3 == 0);
        if (list->ListCount() > 0) list->HandleChosen(static_cast<int>(number) % list->ListCount());
    } else if (auto* picker = dynamic_cast<forms::DatePicker*>(control)) {
        picker->HandleChosen({37700.0 + number % 90});
    } else if (auto* note = dynamic_cast<forms::RichTextBox*>(control)) {
        if (auto* editor = dynamic_cast<FakeRichText*>(note->Peer()))
            editor->Select(number % 7, number / 7 % 9);
    } else if (auto* box = dynamic_cast<forms::TextBox*>(control)) {
        const int length = box->TextLength();
        const int start = static_cast<int>(number) % (length + 1);
        box->HandleSelection(start, static_cast<int>(number / 7) % (length - start + 1));
    }
}

void RandomUser::DoApel(const RandomEvent& event) {
    constexpr std::array<std::int32_t, 4> companies = {7, 7, 8, 99};
    session_.host.connected = event.choice % 16 != 0;
    session_.host.companyId = Pick(companies, event.detail);
    session_.host.workYear = event.choice % 16 == 1 ? std::int16_t{-32768} : std::int16_t{2003};
    session_.host.workDate = event.choice % 16 == 2 ? data::OleDate{1e9} : data::ToOleDate({2003, 5, 20});
    session_.Apel();
}

void RandomUser::RestartPlan(std::optional<PlannedFault> fault) {
    figures.faults += session_.plan->Struck();
    figures.statements += session_.plan->Statements().size();
    session_.plan->Start(fault);
}

void RandomUser::DoFault(const RandomEvent& event) {
    PlannedFault fault;
    fault.kind = Pick(AllFaultKinds, event.choice);
    fault.touch = 1 + event.detail % 12;
    fault.repeat = event.detail % 3 == 0 ? Repeat::Always : Repeat::Once;
    RestartPlan(fault);
}

void RandomUser::DoDatabase(const RandomEvent& event) {
    try {
        session_.Run(Pick(Writes, event.choice));
    } catch (const std::exception&) {
        // The same person twice, perhaps: the other user's own trouble.
    }
}

/// What the user will choose in the next dialogs, or that they are cancelled.
void RandomUser::DoDialog(const RandomEvent& event) {
    RecordingDialogs& dialogs = session_.desktop.dialogs;
    const auto chosen = [&](unsigned bit) { return (event.choice >> bit) % 2 != 0; };
    dialogs.chosenFile.reset();
    dialogs.chosenFont.reset();
    dialogs.chosenColor.reset();
    if (chosen(0)) dialogs.chosenFile = std::string(Pick(FileNames, event.detail));
    if (chosen(1))
        dialogs.chosenFont = forms::CharacterFormat{.points = 8.0 + event.detail % 20, .bold = chosen(4)};
    if (chosen(2)) dialogs.chosenColor = event.detail;
    session_.desktop.files.failsToWrite = event.choice % 32 == 31;
}

void RandomUser::Paint(const RandomEvent& event) {
    const forms::Form* form = PickWindow(event.choice);
    if (form == nullptr) return;
    RecordingSurface surface;
    PaintAll(*form, surface);
}

}  // namespace tavrin::tests
