#include "shell/host_context.h"

#include "data/error.h"

namespace tavrin::shell {

data::Connection& HostContext::Database() const {
    if (!connection) throw data::ObjectNotSet();
    if (beforeQuery) beforeQuery();
    if (!trace) return *connection;
    trace->SetTarget(connection);
    return *trace;
}

bool ConnectionMark::IsCurrent(const HostContext& context) const {
    return context.connection != nullptr && connection_.lock() == context.connection;
}

void ConnectionMark::RequireCurrent(const HostContext& context) const {
    context.Database();
    if (IsCurrent(context)) return;
    throw data::RuntimeError(data::error_number::InvalidConnection);
}

void HostContext::RaiseIesire() const noexcept {
    // Listeners may call Apel again and so replace the caller while it raises the event.
    const std::shared_ptr<CallingObject> current = caller;
    if (current) current->RaiseIesire();
}

}  // namespace tavrin::shell
