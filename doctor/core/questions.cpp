#include "doctor/core/questions.h"

#include <array>
#include <cstdio>

#include "doctor/core/error_words.h"

namespace tavrin::doctor {
namespace {

constexpr std::int32_t PermissionDenied = -2147217911;  // 80040E09
constexpr std::int32_t NoTable = -2147217865;           // 80040E37

std::string NumberText(std::int32_t number) {
    if (number >= 0) return std::to_string(number);
    std::array<char, 9> digits{};
    std::snprintf(digits.data(), digits.size(), "%08X", static_cast<unsigned>(number));
    return digits.data();
}

}  // namespace

data::TablePtr Ask(data::Connection& connection, std::string_view question) {
    const auto rows = connection.CreateRecordset();
    rows->Open(question);
    data::TablePtr table = rows->ReadAll();
    rows->Close();
    return table;
}

void Run(data::Connection& connection, const std::string& statement) {
    const std::string_view verb = std::string_view(statement).substr(0, 6);
    if (verb == "SELECT" || verb == "Select") {
        Ask(connection, statement);
    } else {
        connection.Execute(statement);
    }
}

Text Refused(const Text& what, const data::Error& error) {
    return what + Same(": " + NumberText(error.Number()) + " ") + WordsOf(error);
}

Text AdviceOn(const data::Error& error) {
    switch (error.Number()) {
        case PermissionDenied:
            return {"dați contului dreptul (GRANT); examples/database/tables.sql le are pe toate",
                    "give the login the right (GRANT); examples/database/tables.sql has them all"};
        case NoTable:
            return {"rulați examples/database/tables.sql, sau verificați baza de date din șirul de conectare",
                    "run examples/database/tables.sql, or look which database the connection string names"};
        default:
            return {"comparați tabela cu examples/database/tables.sql",
                    "compare the table with examples/database/tables.sql"};
    }
}

}  // namespace tavrin::doctor
