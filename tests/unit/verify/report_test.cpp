// What the kit concludes from the tests' words, and what its report says and withholds.

#include "verify/report.h"

#include <gmock/gmock.h>

#include "verify/secrets.h"

namespace tavrin::verify {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

TestOutput Heard(std::initializer_list<const char*> lines) {
    TestOutput output;
    for (const char* line : lines)
        output.Add(line);
    return output;
}

Report ReportOf(std::vector<TestResult> tests) {
    Report report;
    report.runs.push_back({"Tests", std::move(tests), {}});
    return report;
}

TEST(TestOutputTest, TellsHowEachTestEnded) {
    const auto results =
        Heard({"[==========] Running 4 tests from 1 test suite.", "[ RUN      ] A.Good",
               "[       OK ] A.Good (1 ms)\r", "[ RUN      ] A.Bad", "a.cpp:3: Failure",
               R"(Its picture: Z:\kit\pictures\A.Bad.png)", "[  FAILED  ] A.Bad (2 ms)", "[ RUN      ] A.Not",
               "[  SKIPPED ] A.Not (0 ms)", "[ RUN      ] A.Crash", "[  FAILED  ] 1 test, listed below:"})
            .Results();
    ASSERT_EQ(results.size(), 4U);
    EXPECT_EQ(results[0].outcome, Outcome::Passed);
    EXPECT_THAT(results[0].said, IsEmpty());
    EXPECT_EQ(results[1].outcome, Outcome::Failed);
    EXPECT_EQ(results[1].picture, "A.Bad.png");
    EXPECT_THAT(results[1].said, HasSubstr("a.cpp:3: Failure"));
    EXPECT_EQ(results[2].outcome, Outcome::Skipped);
    EXPECT_EQ(results[3].name, "A.Crash");
}

TEST(TestOutputTest, ATestThatDoesNotEndIsUnfinished) {
    EXPECT_EQ(Heard({"[ RUN      ] A.Crash", "words"}).Results().at(0).outcome, Outcome::Unfinished);
}

TEST(TestOutputTest, TheListAtTheEndIsNoTest) {
    const auto output = Heard({"[==========] Running 1 test from 1 test suite.", "[ RUN      ] A.Good",
                               "[       OK ] A.Good (1 ms)", "[  FAILED  ] A.Bad"});
    EXPECT_EQ(output.Results().size(), 1U);
    EXPECT_EQ(output.Results()[0].outcome, Outcome::Passed);
    EXPECT_EQ(output.Announced(), 1);
}

TEST(TestOutputTest, WhatIsSaidOutsideOfTestsIsKept) {
    const auto output =
        Heard({"cannot load it", "[ RUN      ] A.Good", "in the test", "[       OK ] A.Good (1 ms)", "end"});
    EXPECT_EQ(output.LastWords(), "cannot load it\nend\n");
}

TEST(ReportTest, TheVerdictIsThatOfTheWorstTest) {
    EXPECT_EQ(VerdictOf(ReportOf({{.name = "A", .outcome = Outcome::Passed}})), Verdict::Passed);
    for (const Outcome bad : {Outcome::Failed, Outcome::Unfinished}) {
        EXPECT_EQ(
            VerdictOf(ReportOf({{.name = "A", .outcome = Outcome::Passed}, {.name = "B", .outcome = bad}})),
            Verdict::Failed);
    }
}

TEST(ReportTest, NothingRunIsNoSuccess) {
    EXPECT_EQ(VerdictOf({}), Verdict::NotRun);
    EXPECT_EQ(VerdictOf(ReportOf({})), Verdict::Failed);
    EXPECT_EQ(VerdictOf(ReportOf({{.name = "A", .outcome = Outcome::Skipped}})), Verdict::Failed);
}

TEST(ReportTest, ObstaclesProblemsAndTheDatabaseCount) {
    Report report = ReportOf({{.name = "A", .outcome = Outcome::Passed}});
    report.runs[0].problems = {"a process ended"};
    EXPECT_EQ(VerdictOf(report), Verdict::Failed);
    report.obstacles = {"no desktop"};
    EXPECT_EQ(VerdictOf(report), Verdict::NotRun);
    report.databaseProblems = {"still there"};
    EXPECT_EQ(VerdictOf(report), Verdict::DatabaseFailed);
}

TEST(ReportTest, SaysWhatFailedAndWhereItsPictureIs) {
    Report report =
        ReportOf({{.name = "A.Good", .outcome = Outcome::Passed},
                  {.name = "A.Bad", .outcome = Outcome::Failed, .picture = "A.Bad.png", .said = "why\n"},
                  {.name = "A.Not", .outcome = Outcome::Skipped, .said = "no administrator\n"}});
    report.system = {{"Windows", "10"}};
    const std::string text = ReportText(report);
    for (const char* part : {"Result: FAILED (1 passed, 1 failed, 1 skipped)\r\n", "  Windows: 10\r\n",
                             "  FAILED A.Bad\r\n    picture: pictures\\A.Bad.png\r\n      why\r\n",
                             "  skipped A.Not\r\n      no administrator\r\n", "    A.Good\r\n"})
        EXPECT_THAT(text, HasSubstr(part));
}

TEST(SecretsTest, AreWithheldWhereverTheyAppear) {
    const std::string connection =
        R"(Provider=X; User ID = boss ;Password="a;b";Data Source=SRV\ONE;Timeout=15)";
    const std::string text = Secrets(connection)
                                 .Withheld("Login failed for 'BOSS' at srv\\one with a;b, " + connection +
                                           "; Provider=X after 15");
    for (const char* secret : {"boss", "BOSS", "a;b", "srv", "SRV"})
        EXPECT_THAT(text, Not(HasSubstr(secret)));
    EXPECT_EQ(text,
              "Login failed for '(withheld)' at (withheld) with (withheld), (withheld); Provider=X after 15");
}

TEST(SecretsTest, OdbcsWordsAndBracesAreKnown) {
    EXPECT_EQ(Secrets("Driver={SQL Server};Server=srv;UID=u1;PWD={p;w}").Withheld("srv u1 p;w {SQL Server}"),
              "(withheld) (withheld) (withheld) {SQL Server}");
    EXPECT_EQ(Secrets("PWD=last").Withheld("last"), "(withheld)");
    EXPECT_EQ(Secrets("WSID=desk;Failover Partner=srv2").Withheld("desk srv2"), "(withheld) (withheld)");
    EXPECT_EQ(Secrets("").Withheld("text"), "text");
    EXPECT_EQ(Secrets().Withheld("text"), "text");
}

TEST(SecretsTest, WhatNobodyKnowsToBeHarmlessIsOne) {
    EXPECT_EQ(Secrets("Access Token=geheim;Server=srv").Withheld("geheim srv"), "(withheld) (withheld)");
    EXPECT_EQ(Secrets("Password=ge;heim;Timeout=15").Withheld("ge and heim, 15"),
              "(withheld) and (withheld), 15");
}

}  // namespace
}  // namespace tavrin::verify
