#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/ado/connection_object.h"
#include "host/ado/recordset_factory.h"
#include "win32/base/com_ptr.h"

namespace tavrin::e2e {

/// The host's database, in memory and new for each test, with the connection that the host passes on and the
/// Recordset class that the component creates. Lives on the host's thread.
class Database {
  public:
    Database();

    /// The ADO-shaped object.
    host::ConnectionObject& Connection() const { return *connection_; }

    /// References to the connection besides the host's own.
    int ReferencesToConnection() const;

    /// Objects of the host's data access that are alive besides the connection: recordsets, fields and so on.
    static long AliveObjects();

    /// Runs a statement of its own, past the connection. \throws data::Error
    void Run(const std::string& statement);

    void SetCodePage(host::CodePage page) { database_->SetCodePage(page); }

    /// The columns of a table in their order.
    std::vector<std::string> Columns(const std::string& table) const;

    /// The rows of a query as texts, in the form in which the windows show values.
    std::vector<std::vector<std::string>> Rows(const std::string& query);

  private:
    std::shared_ptr<host::EmbeddedDatabase> database_;
    host::RecordsetRegistration recordsetClass_;
    win32::ComPtr<host::ConnectionObject> connection_;
};

}  // namespace tavrin::e2e
