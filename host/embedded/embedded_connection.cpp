#include "host/embedded/embedded_connection.h"

namespace tavrin::host {

std::unique_ptr<data::Recordset> EmbeddedConnection::Execute(std::string_view statement) {
    return ExecuteEmbedded(statement);
}

std::unique_ptr<data::Recordset> EmbeddedConnection::CreateRecordset() {
    return CreateEmbeddedRecordset();
}

std::unique_ptr<EmbeddedRecordset> EmbeddedConnection::ExecuteEmbedded(std::string_view statement) {
    std::unique_ptr<EmbeddedRecordset> rows = CreateEmbeddedRecordset();
    rows->Open(statement);
    return rows;
}

std::unique_ptr<EmbeddedRecordset> EmbeddedConnection::CreateEmbeddedRecordset() {
    return std::make_unique<EmbeddedRecordset>(database_, line_);
}

}  // namespace tavrin::host
