#include "proofs/user_session.h"

#include <algorithm>
#include <utility>

#include "addressbook/addressbook_statements.h"
#include "com/composition.h"
#include "data/error.h"
#include "forms/controls/combo_box.h"
#include "forms/controls/date_picker.h"
#include "forms/controls/grid.h"
#include "forms/controls/text_box.h"
#include "host/embedded/embedded_connection.h"
#include "proofs/agreement.h"
#include "proofs/faulty_connection.h"
#include "support/fake_rich_text.h"
#include "support/shadow_peer.h"
#include "support/window_holders.h"

namespace tavrin::tests {

class UserSession::Messages : public shell::MessageService {
  public:
    explicit Messages(UserSession& session) : session_(session) {}

    int ShowMessage(const std::string& prompt, int /*icon*/, int buttons,
                    const std::string& /*title*/) override {
        session_.plan->Meet(Touch::Message);
        return session_.Answer(prompt, buttons);
    }

  private:
    UserSession& session_;
};

class UserSession::Caller : public shell::CallingObject {
  public:
    explicit Caller(int& raised) : raised_(raised) {}
    void RaiseIesire() noexcept override { ++raised_; }

  private:
    int& raised_;
};

UserSession::UserSession(const UserSetting& setting)
    : application(desktop, [this] { return std::make_unique<Messages>(*this); }),
      database_(std::make_shared<host::EmbeddedDatabase>(":memory:")) {
    com::AddWindows(application);
    ConnectPlatform();
    FillDatabase();
    if (setting.fill) setting.fill(*database_);
    connection_ = std::make_shared<FaultyConnection>(Connect(setting), plan);
    caller_ = std::make_shared<Caller>(raised);
    plan->whenStatement = [this](const std::string& statement) { CheckStatement(statement); };
    transaction_ = std::make_unique<host::EmbeddedDatabase::Transaction>(*database_);
}

UserSession::~UserSession() {
    plan->Start();
    whileShowing = nullptr;
    desktop.UnloadAll();
}

std::shared_ptr<data::Connection> UserSession::Connect(const UserSetting& setting) const {
    const auto embedded = std::make_shared<host::EmbeddedConnection>(database_);
    embedded->UseLine(setting.line);
    if (!setting.asked) return embedded;
    return std::make_shared<AskingConnection>(embedded, setting.asked);
}

void UserSession::FillDatabase() {
    for (const char* statement : {
             "CREATE TABLE [Curs Valutar] (Data datetime NOT NULL PRIMARY KEY, Validat int, EUR float, "
             "USD float, [$] float)",
             "CREATE TABLE LpVal (Valuta nvarchar(10), Curs float)",
             "CREATE TABLE An (An int)",
             "INSERT INTO An (An) VALUES (2003)",
             "CREATE TABLE AdmQuadrel.dbo.Societati (Id int, Curs datetime)",
             "INSERT INTO AdmQuadrel.dbo.Societati (Id, Curs) VALUES (7, '05-10-2003')",
             "INSERT INTO AdmQuadrel.dbo.Societati (Id, Curs) VALUES (8, NULL)",
             "INSERT INTO [Curs Valutar] VALUES('04-15-2003',0,36900,32600,1)",
             "INSERT INTO [Curs Valutar] VALUES('05-08-2003',0,37100,32500,2)",
             "INSERT INTO [Curs Valutar] VALUES('05-09-2003',0,37200,32400,3)",
             "INSERT INTO [Curs Valutar] VALUES('05-12-2003',0,37300.5,NULL,4)",
             "INSERT INTO [Curs Valutar] VALUES('05-13-2003',0,37400,32200,4)",
             "INSERT INTO [Curs Valutar] VALUES('05-14-2003',0,37500,32100,4.5)",
         }) {
        database_->Run(statement);
    }
    std::string columns = "Nume nvarchar(30), Prenume nvarchar(30)";
    for (std::size_t i = addressbook::FirstDetailColumn; i < addressbook::Columns.size(); ++i)
        columns += ", " + std::string(addressbook::Columns[i]) + " nvarchar(50)";
    database_->Run("CREATE TABLE Agenda (" + columns + ", UNIQUE (Nume, Prenume))");
    for (const char* nume : {"Albu", "Enescu", "Ionescu", "Popa"}) {
        addressbook::Person person = {nume, "Ana"};
        for (std::size_t i = addressbook::FirstDetailColumn; i < person.size(); ++i)
            person[i] = std::string(nume) + " " + std::to_string(i);
        database_->Run(addressbook::InsertStatement(person));
    }
}

void UserSession::ConnectPlatform() {
    desktop.whenCreating = [this](const forms::Form& form) {
        plan->Meet(Touch::Window);
        GivePeers(form);
    };
    desktop.dialogs.whileShowing = [this](const forms::Form&) {
        const std::size_t files = desktop.dialogs.opened.size() + desktop.dialogs.saved.size();
        plan->Meet(std::exchange(fileDialogs_, files) != files ? Touch::FileDialog : Touch::Dialog);
        if (whileShowing) whileShowing();
    };
    desktop.files.whenUsed = [this] { plan->Meet(Touch::File); };
}

void UserSession::GivePeers(const forms::Form& form) {
    for (forms::Control* control : form.AllControls()) {
        if (auto* box = dynamic_cast<forms::RichTextBox*>(control)) {
            FakeRichText::Give(*box).whenStreaming = [this] { plan->Meet(Touch::Document); };
        } else {
            ShadowPeer::Give(*control, focus_);
        }
    }
}

void UserSession::CheckStatement(const std::string& statement) {
    if (!strayStatement_.empty()) return;
    if (desktop.IsShowingMessage()) strayStatement_ = "under a message ran: " + statement;
    if (!IsSenderLoaded(desktop, statement)) strayStatement_ = "no window was there that sends: " + statement;
}

void UserSession::EmptyAgenda() {
    Run("DELETE FROM Agenda");
}

// The host.

void UserSession::Apel() {
    const forms::Desktop::DispatchScope scope(desktop);
    application.context.companyId = host.companyId;
    application.context.workDate = host.workDate;
    application.context.connection = host.connected ? connection_ : nullptr;
    application.context.workYear = host.workYear;
    application.context.caller = caller_;
    try {
        com::OpenPalette(application);
    } catch (const std::exception& error) {
        hostErrors.emplace_back(error.what());
    }
}

int UserSession::Answer(const std::string& prompt, int buttons) {
    messages.push_back({prompt, buttons});
    if (whileShowing) whileShowing();
    if (buttons != shell::message::YesNo) return 1;
    const bool yes = !answers.empty() && answers.front();
    if (!answers.empty()) answers.pop_front();
    return yes ? shell::message::AnswerYes : shell::message::AnswerNo;
}

// Looking.

forms::Form* UserSession::Window(std::string_view name) const {
    const auto& open = desktop.Forms();
    const auto found = std::ranges::find(open, name, &forms::Form::Name);
    return found != open.end() ? *found : nullptr;
}

forms::Control* UserSession::Find(std::string_view window, std::string_view control) const {
    const forms::Form* form = Window(window);
    return form != nullptr ? form->FindControl(control) : nullptr;
}

// Doing.

void UserSession::Activate(std::string_view window) {
    if (forms::Form* form = Window(window)) desktop.ActivateByUser(form);
}

void UserSession::Click(std::string_view window, std::string_view control) {
    Activate(window);
    forms::Control* found = Find(window, control);
    if (found == nullptr || !desktop.IsWindowEnabled(found->OwnerForm()) || !found->IsEffectivelyVisible())
        return;
    ClickWithMouse(*found);
}

void UserSession::DoubleClick(std::string_view window, std::string_view control) {
    Click(window, control);
    forms::Control* found = Find(window, control);
    if (found == nullptr || !found->OwnerForm().Enabled() || !found->IsEffectivelyVisible()) return;
    const forms::Rect& bounds = found->Bounds();
    found->HandleDblClick({forms::MouseButton::Left, {bounds.width / 2, bounds.height / 2}, {}});
}

void UserSession::Choose(std::string_view window, std::string_view control, int entry) {
    Click(window, control);
    auto* list = FindAs<forms::ComboBox>(window, control);
    if (list == nullptr || !list->CanTakeFocus() || entry >= list->ListCount()) return;
    const forms::Desktop::DispatchScope scope(desktop);
    list->HandleChosen(entry);
}

void UserSession::ChooseDay(std::string_view window, std::string_view control, data::CalendarDay day) {
    Click(window, control);
    auto* picker = FindAs<forms::DatePicker>(window, control);
    if (picker == nullptr || !picker->CanTakeFocus()) return;
    const forms::Desktop::DispatchScope scope(desktop);
    picker->HandleChosen(data::ToOleDate(day));
}

void UserSession::Press(int keyCode, int times) {
    for (int i = 0; i < times; ++i)
        keyboard.Press(keyCode);
}

void UserSession::LeaveAll() {
    Click("Utilitati", "imgClose");
    while (!desktop.Forms().empty())
        desktop.Forms().back()->HandleClose();
}

void UserSession::Restart() {
    plan->Start();
    whileShowing = nullptr;
    desktop.whileReporting = nullptr;
    desktop.UnloadAll();
    if (std::exchange(plan->hasWritten, false)) {
        transaction_.reset();
        transaction_ = std::make_unique<host::EmbeddedDatabase::Transaction>(*database_);
    }
    desktop.reports.clear();
    desktop.dialogs = {};
    fileDialogs_ = 0;
    desktop.files = {};
    ConnectPlatform();
    desktop.cursor = {500, 400};
    messages.clear();
    answers.clear();
    hostErrors.clear();
    raised = 0;
    strayStatement_.clear();
    desktop.messagesAreModal = true;
    host = {};
}

// What must be right.

std::string UserSession::Complaint() const {
    if (desktop.IsDispatching()) return "a dispatch has not ended";
    if (desktop.IsShowingMessage()) return "a message has not ended";
    const auto& open = desktop.Forms();
    for (const forms::Form* form : open) {
        if (!form->Visible()) return form->Name() + " is loaded and out of sight";
        if (form->IsUnloading()) return form->Name() + " has not finished unloading";
        const bool held = std::ranges::any_of(
            open, [&](const forms::Form* other) { return MayHold(other->Name(), form->Name()); });
        if (!form->Enabled() && !held) return form->Name() + " is disabled and nobody will enable it";
        if (form->IsActive() != (form == desktop.ActiveForm())) return form->Name() + " is active in secret";
    }
    const forms::Form* active = desktop.ActiveForm();
    if (active != nullptr && std::ranges::find(open, active) == open.end()) return "a ghost is active";
    if (!strayStatement_.empty()) return strayStatement_;
    if (std::string difference = Disagreement(desktop, focus_); !difference.empty()) return difference;
    const int needed = Window("Agenda") != nullptr ? 1 : 0;
    if (plan->recordsets > needed) return std::to_string(plan->recordsets) + " recordsets are alive";
    return ComplaintOfEditor();
}

std::string UserSession::ComplaintOfEditor() const {
    const auto* field = FindAs<forms::TextBox>("CursValutarDetaliu", "txtCursValutar");
    const auto* grid = FindAs<forms::Grid>("CursValutarDetaliu", "Grid");
    if (field == nullptr || !field->Visible()) return {};
    const forms::Rect cell = grid->CellBounds(grid->Row(), grid->Col());
    const forms::Rect& bounds = grid->Bounds();
    const forms::Rect wanted{bounds.left + cell.left, bounds.top + cell.top, cell.width, cell.height};
    return field->Bounds() == wanted ? std::string() : "the editor is not over the current cell";
}

std::string UserSession::ComplaintAfterLeaving() const {
    if (std::string complaint = Complaint(); !complaint.empty()) return complaint;
    if (!desktop.Forms().empty()) return desktop.Forms().front()->Name() + " is still open";
    // The session's own reference, and the one that the last Apel handed over.
    const long held = application.context.connection == connection_ ? 2 : 1;
    if (connection_.use_count() != held)
        return "the connection has " + std::to_string(connection_.use_count()) + " references";
    if (plan->recordsets != 0) return std::to_string(plan->recordsets) + " recordsets are alive";
    return {};
}

}  // namespace tavrin::tests
