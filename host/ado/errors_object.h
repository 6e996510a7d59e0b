#pragma once

#include <memory>
#include <utility>

#include "host/ado/live_objects.h"
#include "host/ado/session.h"
#include "host/automation/script_object.h"

namespace tavrin::host {

/// One entry of the Errors collection, as it was when it was asked for.
class ErrorObject : public ScriptObject {
  public:
    explicit ErrorObject(data::Error error) : error_(std::move(error)) {}

  protected:
    std::span<const Member> Members() const override;

  private:
    win32::Variant Number(const CallArguments&) { return win32::Variant(error_.Number()); }
    win32::Variant Source(const CallArguments&) { return win32::Variant(std::string_view("Tavrin host")); }
    win32::Variant Description(const CallArguments&) {
        return win32::Variant(std::string_view(error_.what()));
    }
    win32::Variant NativeError(const CallArguments&) { return win32::Variant(std::int32_t{0}); }

    win32::ObjectCount::Ticket ticket_{LiveObjects::Get().errors};
    data::Error error_;
};

/// The connection's Errors.
class ErrorsObject : public ScriptObject {
  public:
    explicit ErrorsObject(std::shared_ptr<Session> session) : session_(std::move(session)) {}

  protected:
    std::span<const Member> Members() const override;

  private:
    win32::Variant Count(const CallArguments&);
    win32::Variant Item(const CallArguments& arguments);
    win32::Variant Clear(const CallArguments&);

    win32::ObjectCount::Ticket ticket_{LiveObjects::Get().errors};
    std::shared_ptr<Session> session_;
};

}  // namespace tavrin::host
