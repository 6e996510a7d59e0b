// Feeds random statements, one a line, to the embedded database. It may refuse them in a provider's terms,
// but in no other way; a refused statement changes nothing.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "host/embedded/embedded_database.h"

namespace {

namespace data = tavrin::data;
using tavrin::host::EmbeddedDatabase;

EmbeddedDatabase& Database() {
    static const auto database = [] {
        auto made = std::make_unique<EmbeddedDatabase>(":memory:");
        for (const char* statement : {
                 "CREATE TABLE [Curs Valutar] (Data datetime NOT NULL PRIMARY KEY, Validat int, EUR float)",
                 "INSERT INTO [Curs Valutar] VALUES('05-08-2003',0,37100.5)",
                 "INSERT INTO [Curs Valutar] VALUES('05-09-2003',NULL,NULL)",
                 "CREATE TABLE Agenda (Nume nvarchar(30), Prenume nvarchar(30), UNIQUE (Nume, Prenume))",
                 "INSERT INTO Agenda VALUES('Popa','Ana')",
                 "CREATE TABLE AdmQuadrel.dbo.Societati (Id int, Curs smalldatetime)",
                 "INSERT INTO AdmQuadrel.dbo.Societati VALUES(7,'2003-05-10')",
             }) {
            made->Run(statement);
        }
        return made;
    }();
    return *database;
}

std::string Rows(EmbeddedDatabase& database, const char* statement) {
    const auto rows = database.Run(statement).rows;
    std::string text;
    for (std::size_t row = 0; row < rows->RowCount(); ++row)
        for (std::size_t field = 0; field < rows->FieldCount(); ++field)
            text += rows->At(row, field).ToText() + '|';
    return text;
}

/// What the tables hold; nothing where a table has been changed beyond recognition.
std::optional<std::string> Content(EmbeddedDatabase& database) {
    try {
        return Rows(database, "SELECT * FROM [Curs Valutar]") + Rows(database, "SELECT * FROM Agenda");
    } catch (const data::Error&) {
        return std::nullopt;
    }
}

void Run(EmbeddedDatabase& database, std::string_view statement) {
    const std::optional<std::string> before = Content(database);
    try {
        const EmbeddedDatabase::Answer answer = database.Run(statement);
        if (answer.rows && answer.rows->FieldCount() != answer.fields.size()) std::abort();
    } catch (const data::Error& error) {
        if (Content(database) == before && !error.Description().empty()) return;
        std::cerr << "Refused, and yet: " << statement << '\n';
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    std::string_view text(reinterpret_cast<const char*>(bytes), size);
    EmbeddedDatabase& database = Database();
    const EmbeddedDatabase::Transaction undone(database);
    for (int count = 0; count < 8 && !text.empty(); ++count) {
        const std::size_t end = text.find('\n');
        Run(database, text.substr(0, end));
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    }
    return 0;
}
