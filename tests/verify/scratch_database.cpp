#include "verify/scratch_database.h"

#include <stdexcept>

#include "verify/sql_batches.h"

namespace tavrin::verify {

namespace {

// Names that the script has for those who run it by hand.
constexpr const char* NameOfDatabase = "Firma";
constexpr const char* NameOfLogin = "contabil";

}  // namespace

void ScratchDatabase::Make(const std::string& script) {
    for (const std::string& database : {std::string(AdministrationDatabase), name_}) {
        if (Exists(database)) {
            throw std::runtime_error("the server has a database " + database +
                                     " already, which is not touched: take a server for tests");
        }
    }
    made_ = {name_};
    // Texts without N pass the code page of a database, and the windows' are Romanian.
    server_.Execute("CREATE DATABASE [" + name_ + "] COLLATE Romanian_CI_AS");
    server_.Execute("USE [" + name_ + "]");
    made_.emplace_back(AdministrationDatabase);
    const std::string own = WithName(WithName(script, NameOfDatabase, name_), NameOfLogin, name_ + "_nobody");
    for (const std::string& batch : SplitBatches(own))
        server_.Execute(batch);
    Require(name_ + ".dbo.[Curs Valutar]");
    Require(std::string(AdministrationDatabase) + ".dbo.Societati");
}

std::vector<std::string> ScratchDatabase::Drop() {
    std::vector<std::string> problems;
    for (; !made_.empty(); made_.pop_back()) {
        try {
            DropOne(made_.back());
        } catch (const std::exception& error) {
            problems.push_back("the database " + made_.back() + " is still on the server: " + error.what());
        }
    }
    return problems;
}

bool ScratchDatabase::Exists(const std::string& database) {
    return !data::ExecuteScalar(server_, "SELECT DB_ID('" + database + "')").IsNull();
}

void ScratchDatabase::Require(const std::string& table) {
    if (data::ExecuteScalar(server_, "SELECT OBJECT_ID('" + table + "')").IsNull())
        throw std::runtime_error("the script has not made the table " + table);
}

void ScratchDatabase::DropOne(const std::string& database) {
    server_.Execute("USE master");
    if (!Exists(database)) return;
    server_.Execute("ALTER DATABASE [" + database + "] SET SINGLE_USER WITH ROLLBACK IMMEDIATE");
    server_.Execute("DROP DATABASE [" + database + "]");
    if (Exists(database)) throw std::runtime_error("the server has kept it");
}

}  // namespace tavrin::verify
