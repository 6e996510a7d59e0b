#include "e2e/driver/database.h"

#include "e2e/driver/wait.h"
#include "host/embedded/demo_data.h"

namespace tavrin::e2e {

Database::Database()
    : database_(host::OpenDemoDatabase(":memory:")),
      connection_(win32::MakeObject<host::ConnectionObject>(database_)) {}

int Database::ReferencesToConnection() const {
    connection_->AddRef();
    return static_cast<int>(connection_->Release()) - 1;
}

long Database::AliveObjects() {
    const host::LiveObjects& alive = host::LiveObjects::Get();
    return alive.recordsets.Alive() + alive.fields.Alive() + alive.errors.Alive();
}

void Database::Run(const std::string& statement) {
    database_->Run(statement);
}

std::vector<std::string> Database::Columns(const std::string& table) const {
    std::vector<std::string> names;
    const auto schema = database_->FindTable(table);
    if (!schema) throw DriverError("no table " + table);
    for (const auto& column : schema->columns)
        names.push_back(column.name);
    return names;
}

std::vector<std::vector<std::string>> Database::Rows(const std::string& query) {
    const auto table = database_->Run(query).rows;
    std::vector<std::vector<std::string>> rows(table->RowCount());
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t field = 0; field < table->FieldCount(); ++field)
            rows[row].push_back(table->At(row, field).ToText());
    }
    return rows;
}

}  // namespace tavrin::e2e
