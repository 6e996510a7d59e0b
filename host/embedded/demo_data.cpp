#include "host/embedded/demo_data.h"

#include "host/embedded/demo_people.h"
#include "host/embedded/demo_rates.h"

namespace tavrin::host {
namespace {

void CreateCompanies(EmbeddedDatabase& database) {
    for (const char* const statement :
         {"CREATE TABLE AdmQuadrel.dbo.Societati (Id int PRIMARY KEY, Denumire nvarchar(80), Curs "
          "smalldatetime)",
          "INSERT INTO AdmQuadrel.dbo.Societati VALUES (1, 'Exemplu Comert SRL', '2003-03-31')",
          "INSERT INTO AdmQuadrel.dbo.Societati VALUES (2, 'Exemplu Servicii SRL', NULL)",
          "INSERT INTO AdmQuadrel.dbo.Societati VALUES (3, 'Exemplu Industrie SA', '1999-12-31')"}) {
        database.Run(statement);
    }
}

void CreateYears(EmbeddedDatabase& database) {
    database.Run("CREATE TABLE An (An int PRIMARY KEY)");
    for (int year = DemoFirstYear; year <= DemoLastYear; ++year) {
        database.Run("INSERT INTO An VALUES (" + std::to_string(year) + ")");
    }
}

}  // namespace

void CreateDemoData(EmbeddedDatabase& database) {
    EmbeddedDatabase::Transaction transaction(database);
    CreateCompanies(database);
    CreateYears(database);
    CreateDemoRates(database);
    CreateDemoPeople(database);
    transaction.Commit();
}

std::shared_ptr<EmbeddedDatabase> OpenDemoDatabase(const std::string& path, CodePage codePage) {
    auto database = std::make_shared<EmbeddedDatabase>(path, codePage);
    if (database->IsBlank()) CreateDemoData(*database);
    return database;
}

}  // namespace tavrin::host
