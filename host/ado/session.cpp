#include "host/ado/session.h"

namespace tavrin::host {

std::unique_ptr<EmbeddedRecordset> Session::Run(const std::string& statement) {
    if (!isOpen) ado_error::ThrowInvalidConnection();
    if (beforeStatement) beforeStatement(statement);
    return connection->ExecuteEmbedded(statement);
}

void Session::AskServer() const {
    if (Line* const line = connection ? connection->LineInUse() : nullptr) line->Ask();
}

void Session::Record(const data::Error& error) {
    if (error.Number() < 0) errors = {error};
}

namespace ado_error {

void ThrowWrongArguments() {
    throw data::Error(3001,
                      "Arguments are of the wrong type, are out of acceptable range, or are in conflict "
                      "with one another.");
}

void ThrowNotThisCursor() {
    throw data::Error(3219, "Operation is not allowed in this context.");
}

void ThrowItemNotFound() {
    throw data::Error(
        data::error_number::ItemNotFound,
        "Item cannot be found in the collection corresponding to the requested name or ordinal.");
}

void ThrowClosed() {
    throw data::Error(data::error_number::ObjectClosed,
                      "Operation is not allowed when the object is closed.");
}

void ThrowOpen() {
    throw data::Error(data::error_number::ObjectOpen, "Operation is not allowed when the object is open.");
}

void ThrowInvalidConnection() {
    throw data::Error(3709,
                      "The connection cannot be used to perform this operation. It is either closed or "
                      "invalid in this context.");
}

void ThrowNoTransaction() {
    throw data::Error(-2147168242, "No transaction is active.");
}

void ThrowOneTransactionAlone() {
    throw data::Error(-2147168237, "Cannot start more transactions on this session.");
}

}  // namespace ado_error
}  // namespace tavrin::host
