#pragma once

#include <memory>
#include <string>
#include <vector>

#include "verify/report.h"
#include "win32/ado/ado_connection.h"

namespace tavrin::verify {

/// A server reached through the machine's ADO, as long as the object lives. The thread needs an apartment.
class AdoServer {
  public:
    /// \throws data::Error, with what the provider says
    explicit AdoServer(const std::string& connectionString);
    ~AdoServer();
    AdoServer(const AdoServer&) = delete;
    AdoServer& operator=(const AdoServer&) = delete;

    data::Connection& Connection() { return *connection_; }

    /// What the report says of it; what it does not tell is left out.
    std::vector<Fact> Facts();

  private:
    win32::DispatchObject object_;
    std::unique_ptr<win32::AdoConnection> connection_;
};

}  // namespace tavrin::verify
