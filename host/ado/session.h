#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "data/error.h"
#include "host/embedded/embedded_connection.h"

namespace tavrin::host {

/// What a connection shares with its recordsets.
struct Session {
    std::unique_ptr<EmbeddedConnection> connection;
    bool isOpen = true;

    /// The provider's errors of the last call that failed.
    std::vector<data::Error> errors;

    /// Sees each statement before it is run; what it throws is the answer.
    std::function<void(const std::string& statement)> beforeStatement;

    /// Runs a statement. \throws data::Error 3709 where the connection is closed
    std::unique_ptr<EmbeddedRecordset> Run(const std::string& statement);

    /// A question to the server that is no statement.
    void AskServer() const;

    /// Keeps a provider's error; those of ADO itself are none.
    void Record(const data::Error& error);
};

/// ADO's own errors, as it words them.
namespace ado_error {
[[noreturn]] void ThrowWrongArguments();       ///< 3001
[[noreturn]] void ThrowNotThisCursor();        ///< 3219
[[noreturn]] void ThrowItemNotFound();         ///< 3265
[[noreturn]] void ThrowClosed();               ///< 3704
[[noreturn]] void ThrowOpen();                 ///< 3705
[[noreturn]] void ThrowInvalidConnection();    ///< 3709
[[noreturn]] void ThrowNoTransaction();        ///< 8004D00E
[[noreturn]] void ThrowOneTransactionAlone();  ///< 8004D013, of providers that nest none
}  // namespace ado_error

}  // namespace tavrin::host
