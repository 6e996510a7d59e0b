// The scratch database on somebody's server: what is sent, and that nothing is left behind or taken away.

#include "verify/scratch_database.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "support/recording_connection.h"

namespace tavrin::verify {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using tests::RecordingConnection;

constexpr const char* AskForAdministration = "SELECT DB_ID('AdmQuadrel')";
constexpr const char* AskForScratch = "SELECT DB_ID('Try')";

/// A server that answers as one on which all goes well, where a test does not say otherwise.
class ScratchDatabaseTest : public testing::Test {
  protected:
    ScratchDatabaseTest() {
        AnswerIds(AskForAdministration, {data::Null{}, std::int64_t{7}, data::Null{}});
        AnswerIds(AskForScratch, {data::Null{}, std::int64_t{8}, data::Null{}});
        AnswerIds("SELECT OBJECT_ID('Try.dbo.[Curs Valutar]')", {std::int64_t{9}});
        AnswerIds("SELECT OBJECT_ID('AdmQuadrel.dbo.Societati')", {std::int64_t{10}});
        for (const char* database : {"Try", "AdmQuadrel"}) {
            for (const char* verb : {"ALTER DATABASE [", "DROP DATABASE ["}) {
                const bool isAlter = verb[0] == 'A';
                server.Script().AnswerDone(std::string(verb) + database +
                                           (isAlter ? "] SET SINGLE_USER WITH ROLLBACK IMMEDIATE" : "]"));
            }
        }
        for (const char* statement :
             {"CREATE DATABASE [Try] COLLATE Romanian_CI_AS", "USE [Try]", "USE master", "one Try\n", "two"})
            server.Script().AnswerDone(statement);
    }

    void AnswerIds(const char* statement, const std::vector<data::Value>& ids) {
        for (const data::Value& id : ids)
            server.Script().AnswerRows(statement, {"id"}, {{id}});
    }

    std::vector<std::string> Dropped() const {
        std::vector<std::string> statements = server.Statements();
        std::erase_if(statements, [](const std::string& each) { return !each.starts_with("DROP"); });
        return statements;
    }

    RecordingConnection server;
    ScratchDatabase scratch{server, "Try"};
};

TEST_F(ScratchDatabaseTest, IsMadeFromTheScriptUnderItsOwnName) {
    scratch.Make("one Firma\nGO\ntwo");
    EXPECT_THAT(
        server.Statements(),
        ElementsAre(AskForAdministration, AskForScratch, "CREATE DATABASE [Try] COLLATE Romanian_CI_AS",
                    "USE [Try]", "one Try\n", "two", "SELECT OBJECT_ID('Try.dbo.[Curs Valutar]')",
                    "SELECT OBJECT_ID('AdmQuadrel.dbo.Societati')"));
}

TEST_F(ScratchDatabaseTest, GoesWithTheAdministrationDatabase) {
    scratch.Make("two");
    EXPECT_THAT(scratch.Drop(), IsEmpty());
    EXPECT_THAT(Dropped(), ElementsAre("DROP DATABASE [AdmQuadrel]", "DROP DATABASE [Try]"));
    EXPECT_THAT(scratch.Drop(), IsEmpty());
    EXPECT_EQ(Dropped().size(), 2U) << "once is enough";
}

TEST_F(ScratchDatabaseTest, NothingIsTouchedWhereTheAdministrationDatabaseExists) {
    RecordingConnection used;
    used.Script().AnswerRows(AskForAdministration, {"id"}, {{std::int64_t{5}}});
    ScratchDatabase other(used, "Try");
    EXPECT_THROW(other.Make("two"), std::runtime_error);
    EXPECT_THAT(other.Drop(), IsEmpty());
    EXPECT_THAT(used.Statements(), ElementsAre(AskForAdministration));
}

TEST_F(ScratchDatabaseTest, GoesWhereTheScriptFails) {
    server.FailStatement("two", data::Error(data::error_number::ErrorsInCommand, "refused"));
    EXPECT_THROW(scratch.Make("one Firma\nGO\ntwo"), data::Error);
    EXPECT_THAT(scratch.Drop(), IsEmpty());
    EXPECT_THAT(Dropped(), ElementsAre("DROP DATABASE [AdmQuadrel]", "DROP DATABASE [Try]"));
}

TEST_F(ScratchDatabaseTest, WhatWasNeverMadeIsNotDropped) {
    server.FailStatement("CREATE DATABASE", data::Error(data::error_number::ErrorsInCommand, "no right"));
    EXPECT_THROW(scratch.Make("two"), data::Error);
    scratch.Drop();
    EXPECT_THAT(Dropped(), Not(Contains("DROP DATABASE [AdmQuadrel]")));
}

TEST_F(ScratchDatabaseTest, AScriptThatMakesOtherTablesIsFound) {
    RecordingConnection empty;
    for (const char* statement :
         {AskForAdministration, AskForScratch, "SELECT OBJECT_ID('Try.dbo.[Curs Valutar]')"})
        empty.Script().AnswerRows(statement, {"id"}, {{data::Null{}}});
    for (const char* statement : {"CREATE DATABASE [Try] COLLATE Romanian_CI_AS", "USE [Try]"})
        empty.Script().AnswerDone(statement);
    EXPECT_THROW(ScratchDatabase(empty, "Try").Make("-- nothing"), std::runtime_error);
}

TEST_F(ScratchDatabaseTest, WhatStaysIsTold) {
    scratch.Make("two");
    server.FailStatement("DROP DATABASE [AdmQuadrel]", data::Error(-1, "in use"));
    EXPECT_THAT(scratch.Drop(), ElementsAre(HasSubstr("AdmQuadrel is still on the server: in use")));
    EXPECT_THAT(Dropped(), Contains("DROP DATABASE [Try]")) << "the other goes all the same";
}

}  // namespace
}  // namespace tavrin::verify
