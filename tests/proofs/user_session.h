#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "data/text/date.h"
#include "forms/model/form.h"
#include "host/embedded/embedded_database.h"
#include "host/embedded/line.h"
#include "proofs/fault_plan.h"
#include "shell/application.h"
#include "support/asking_connection.h"
#include "support/headless_desktop.h"
#include "support/headless_keyboard.h"

namespace tavrin::tests {

/// What a session stands on besides its small database.
struct UserSetting {
    std::function<void(host::EmbeddedDatabase&)> fill;  ///< adds to the database
    std::shared_ptr<host::Line> line;                   ///< to the database
    std::shared_ptr<Asked> asked;                       ///< of the recordsets
};

/// The whole component as a host has loaded it, on a headless desktop and a small database that may fail, and
/// a user at it. What the user asks for and cannot have (a window that is not open, a button that is
/// disabled) is left undone, as in life. The database forgets everything at Restart.
class UserSession {
  public:
    explicit UserSession(const UserSetting& setting);
    UserSession() : UserSession(UserSetting()) {}
    ~UserSession();
    UserSession(const UserSession&) = delete;
    UserSession& operator=(const UserSession&) = delete;

    /// What the next Apel hands over.
    struct HostValues {
        bool connected = true;
        data::OleDate workDate = data::ToOleDate({2003, 5, 20});
        std::int16_t workYear = 2003;
        std::int32_t companyId = 7;
    };
    HostValues host;
    /// As the component's own: what it throws goes to the host, here into hostErrors.
    void Apel();

    // Looking.
    forms::Form* Window(std::string_view name) const;
    forms::Control* Find(std::string_view window, std::string_view control) const;
    template <class Kind>
    Kind* FindAs(std::string_view window, std::string_view control) const {
        return dynamic_cast<Kind*>(Find(window, control));
    }

    // Doing.
    void Activate(std::string_view window);
    void Click(std::string_view window, std::string_view control);
    void DoubleClick(std::string_view window, std::string_view control);
    /// Chooses an entry of a list with the mouse.
    void Choose(std::string_view window, std::string_view control, int entry);
    void ChooseDay(std::string_view window, std::string_view control, data::CalendarDay day);
    void Press(int keyCode, int times = 1);
    void Type(std::string_view text) { keyboard.Type(text); }
    void Paste(std::string_view text) { keyboard.Paste(text); }
    /// Closes the palette, and then what it leaves open.
    void LeaveAll();

    /// Past the faults and the counting.
    void Run(const std::string& statement) {
        plan->hasWritten = true;
        database_->Run(statement);
    }
    void EmptyAgenda();
    /// What the user chooses in dialogs from now on; nothing cancels them.
    void ChooseFile(std::optional<std::string> name) { desktop.dialogs.chosenFile = std::move(name); }

    /// Closes every window and takes back what was written.
    void Restart();

    /// What no moment between two inputs may show; empty where all is right.
    std::string Complaint() const;
    /// What may not be left once every window is closed.
    std::string ComplaintAfterLeaving() const;

    struct Shown {
        std::string text;
        int buttons;
    };

    HeadlessDesktop desktop;
    HeadlessKeyboard keyboard{desktop};
    std::shared_ptr<FaultPlan> plan = std::make_shared<FaultPlan>();
    std::vector<Shown> messages;
    std::deque<bool> answers;            ///< to the next questions: yes or no; no where none is laid down
    std::function<void()> whileShowing;  ///< a message or a dialog
    std::vector<std::string> hostErrors;
    int raised = 0;  ///< how often the host was told that the user left
    shell::Application application;

  private:
    class Messages;
    class Caller;

    void FillDatabase();
    std::shared_ptr<data::Connection> Connect(const UserSetting& setting) const;
    void ConnectPlatform();
    void GivePeers(const forms::Form& form);
    int Answer(const std::string& prompt, int buttons);
    void CheckStatement(const std::string& statement);
    /// The field that edits a rate lies over the cell that it edits, and over no other.
    std::string ComplaintOfEditor() const;

    std::size_t fileDialogs_ = 0;  ///< that have been asked for
    std::shared_ptr<host::EmbeddedDatabase> database_;
    std::unique_ptr<host::EmbeddedDatabase::Transaction> transaction_;
    std::shared_ptr<data::Connection> connection_;
    std::shared_ptr<shell::CallingObject> caller_;
    const forms::Control* focus_ = nullptr;  ///< that has the platform's focus
    std::string strayStatement_;             ///< the first that nobody may have sent
};

}  // namespace tavrin::tests
