// The doctor's list of statements against what the windows send when users do everything that they can.
#include "doctor/core/window_statements.h"

#include <gmock/gmock.h>

#include <regex>
#include <set>

#include "proofs/flows.h"

namespace tavrin {
namespace {

/// A statement without what its user chose: texts, numbers, currencies and how many of them there are.
std::string Shape(std::string statement) {
    const std::pair<const char*, const char*> steps[] = {
        {"'[^']*'", "'?'"},
        {R"(\[(?!(Curs Valutar|Curs valutar|Curs|Data|D|Agenda|AGENDA)\])[^\]]*\])", "[c]"},
        {R"(\b\d+(\.\d+)?\b)", "#"},
        {R"((, \[c\] )+)", ", [c] "},
        {R"((,\[c\])+)", ",[c]"},
        {R"((,#)+)", ",#"},
        {R"((\[c\] = #, )+)", ""},
    };
    for (const auto& [pattern, replacement] : steps)
        statement = std::regex_replace(statement, std::regex(pattern), replacement);
    return statement;
}

std::set<std::string> ListedShapes() {
    std::set<std::string> shapes;
    for (const doctor::StatementGroup& group : doctor::WindowStatements(doctor::UnlikelySample())) {
        for (const std::string& statement : group.statements)
            shapes.insert(Shape(statement));
    }
    return shapes;
}

/// These make statements that no database takes.
bool BreaksStatements(std::string_view flow) {
    return flow == "currency: a name with a bracket" || flow == "book: an apostrophe";
}

std::set<std::string> SentShapes() {
    std::set<std::string> shapes;
    tests::UserSession user;
    for (const tests::Flow& flow : tests::AllFlows()) {
        if (BreaksStatements(flow.name)) continue;
        user.Restart();
        user.plan->Start();
        user.Apel();
        flow.prepare(user);
        flow.act(user);
        for (const std::string& statement : user.plan->Statements())
            shapes.insert(Shape(statement));
    }
    return shapes;
}

TEST(WindowStatements, AreAllThatTheWindowsSendAndNoOthers) {
    EXPECT_THAT(ListedShapes(), testing::ContainerEq(SentShapes()));
}

}  // namespace
}  // namespace tavrin
