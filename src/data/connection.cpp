#include "data/connection.h"

#include "data/error.h"

namespace tavrin::data {

std::unique_ptr<Recordset> Connection::Adopt(std::unique_ptr<Recordset> /*recordset*/) {
    return CreateRecordset();
}

Value ExecuteScalar(Connection& connection, std::string_view statement) {
    const std::unique_ptr<Recordset> rows = connection.Execute(statement);
    if (rows == nullptr || !rows->IsOpen() || rows->AtEnd()) {
        throw RuntimeError(error_number::NoCurrentRecord);
    }
    return rows->Field(std::size_t{0});
}

}  // namespace tavrin::data
