#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "host/ado/live_objects.h"
#include "host/ado/session.h"
#include "host/automation/script_object.h"

namespace tavrin::host {

/// An ADO Connection on an embedded database.
class ConnectionObject : public ScriptObject {
  public:
    /// What opens the database that a connection string names.
    using Opener = std::function<std::shared_ptr<EmbeddedDatabase>(const std::string& connectionString)>;

    /// One that is open, as a host passes it on.
    explicit ConnectionObject(std::shared_ptr<EmbeddedDatabase> database);
    /// One that is closed, as a host creates it.
    explicit ConnectionObject(Opener opener);

    const std::shared_ptr<Session>& SharedSession() const { return session_; }

  protected:
    std::span<const Member> Members() const override;
    void OnFailure(const data::Error& error) override { session_->Record(error); }

  private:
    win32::Variant Execute(const CallArguments& arguments);
    win32::Variant Open(const CallArguments& arguments);
    win32::Variant Close(const CallArguments&);
    win32::Variant BeginTrans(const CallArguments&);
    win32::Variant CommitTrans(const CallArguments&);
    win32::Variant RollbackTrans(const CallArguments&);
    win32::Variant State(const CallArguments&);
    win32::Variant Errors(const CallArguments&);
    win32::Variant Version(const CallArguments&);
    win32::Variant Provider(const CallArguments&);
    win32::Variant GetCursorLocation(const CallArguments&);
    win32::Variant PutCursorLocation(const CallArguments& arguments);
    win32::Variant GetCommandTimeout(const CallArguments&);
    win32::Variant PutCommandTimeout(const CallArguments& arguments);
    win32::Variant GetConnectionString(const CallArguments&);
    win32::Variant PutConnectionString(const CallArguments& arguments);

    win32::ObjectCount::Ticket ticket_{LiveObjects::Get().connections};
    std::shared_ptr<Session> session_ = std::make_shared<Session>();
    std::optional<EmbeddedDatabase::Transaction> transaction_;  // before the session goes
    Opener opener_;
    std::string connectionString_;
    std::int32_t cursorLocation_ = 2;   // on the server
    std::int32_t commandTimeout_ = 30;  // seconds
};

}  // namespace tavrin::host
