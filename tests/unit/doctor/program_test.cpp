// The program as its user calls it, with a report that the test gives.
#include "doctor/core/program.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "doctor/core/product.h"
#include "doctor/core/report.h"

namespace tavrin::doctor {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class DoctorProgram : public testing::Test {
  protected:
    int Run(const std::vector<std::string>& arguments) {
        const auto examine = [this](const Options& options) {
            seen = options;
            ++looks;
            return report;
        };
        const auto write = [this](const std::string&, const std::string& content) {
            page = content;
            return canWrite;
        };
        return RunProgram(arguments, {{"--connection", "  --connection STRING\n"},
                                      Language::Romanian,
                                      {"2026-03-04 05:06:07", "CONTAB-1"},
                                      examine,
                                      [this](const std::string& text) { printed += text; },
                                      [this](const std::string& text) { complaints += text; },
                                      write});
    }

    Report report{Section{{"Titlu", "Title"}, {}}};
    Options seen;
    int looks = 0;
    std::string printed;
    std::string complaints;
    std::string page;
    bool canWrite = true;
};

TEST_F(DoctorProgram, EndsWellWhereNothingIsWrong) {
    report.front().Good({"bine", "fine"});
    report.front().Warn({"hm", "hm"}, {"", ""});
    EXPECT_EQ(Run({}), exit_code::AllWell);
    EXPECT_THAT(printed, HasSubstr("erori: 0, avertismente: 1"));
}

TEST_F(DoctorProgram, SaysWhatIsWrongAndWhatToDo) {
    report.front().Fail({"rau", "bad"}, {"repara", "mend it"});
    EXPECT_EQ(Run({}), exit_code::Errors);
    EXPECT_THAT(printed,
                AllOf(HasSubstr("Titlu\n  EROARE   rau\n           -> repara\n"), Not(HasSubstr("mend"))));
    EXPECT_EQ(page, "") << "nobody asked for one";
}

TEST_F(DoctorProgram, SpeaksEnglishWhereAsked) {
    report.front().Fail({"rau", "bad"}, {"repara", "mend it"});
    Run({"--language", "en"});
    EXPECT_THAT(printed,
                AllOf(HasSubstr("Title\n  ERROR    bad\n           -> mend it\n"), Not(HasSubstr("repara"))));
}

TEST_F(DoctorProgram, WritesAPage) {
    report.front().Fail({"rau", "bad <b> & \"c\""}, {"repara", "mend it"});
    EXPECT_EQ(Run({"--report", "r.html", "--language", "en"}), exit_code::Errors);
    EXPECT_THAT(page, AllOf(HasSubstr("<html lang=\"en\">"), HasSubstr("bad &lt;b&gt; &amp; &quot;c&quot;"),
                            HasSubstr("mend it"), Not(HasSubstr("<b>"))));
}

TEST_F(DoctorProgram, SaysWhereTheReportCannotBeWritten) {
    canWrite = false;
    EXPECT_EQ(Run({"--report", "r.html"}), exit_code::NoReport);
    EXPECT_THAT(complaints, HasSubstr("cannot write r.html"));
}

TEST_F(DoctorProgram, PassesItsOptionsOn) {
    Run({"--connection", "Data Source=x", "--company", "7"});
    EXPECT_EQ(seen.source, "Data Source=x");
    EXPECT_EQ(seen.company, 7);
    Run({});
    EXPECT_EQ(seen.company, std::nullopt);
}

TEST_F(DoctorProgram, HelpsWithoutLooking) {
    for (const char* const option : {"--help", "/?"}) {
        printed.clear();
        EXPECT_EQ(Run({option}), exit_code::AllWell);
        EXPECT_THAT(printed, AllOf(HasSubstr("Usage:"), HasSubstr("--connection STRING")));
        EXPECT_EQ(looks, 0);
    }
}

TEST_F(DoctorProgram, SaysItsVersionAlone) {
    EXPECT_EQ(Run({"--version"}), exit_code::AllWell);
    EXPECT_THAT(printed, testing::MatchesRegex("tavrin_doctor [0-9]+[.][0-9]+[.][0-9]+[.][0-9]+\n"));
    EXPECT_EQ(looks, 0);
}

TEST_F(DoctorProgram, SaysWhereAndWhenItLooked) {
    Run({"--report", "r.html"});
    const std::string head =
        std::string("tavrin_doctor ") + BuildVersion + ", calculatorul CONTAB-1, 2026-03-04 05:06:07";
    EXPECT_THAT(printed, testing::StartsWith(head + "\n"));
    EXPECT_THAT(page, HasSubstr("<p>" + head + "</p>"));
}

TEST_F(DoctorProgram, LinesUpWhateverItsLettersTake) {
    report.front().Warn({"hm", "hm"}, {"da", "yes"});
    Run({"--report", "r.html"});
    EXPECT_THAT(printed, HasSubstr("\n  aten\u021bie  hm\n"));
    EXPECT_THAT(page, AllOf(HasSubstr("<meta charset=\"utf-8\">"), HasSubstr("<th>aten\u021bie</th>")));
}

TEST_F(DoctorProgram, TakesACompanyWithoutADatabaseWhereThereIsOneAnyway) {
    const SourceOption source{"--database", "", true};
    EXPECT_EQ(ParseOptions({"--company", "7"}, source).company, 7);
}

TEST_F(DoctorProgram, RefusesWhatItDoesNotKnowInOneLine) {
    const std::vector<std::vector<std::string>> wrong{
        {"--nonsense"}, {"nonsense"},           {"--connection"},       {"--connection", "--report"},
        {"--report"},   {"--language", "fr"},   {"--company", "seven"}, {"--company", "7x"},
        {"--database"}, {"--database", "demo"}, {"--company", "7"},     {"--report", "", "--help"}};
    for (const std::vector<std::string>& arguments : wrong) {
        complaints.clear();
        EXPECT_EQ(Run(arguments), exit_code::WrongUse) << arguments.front();
        EXPECT_EQ(std::count(complaints.begin(), complaints.end(), '\n'), 1) << complaints;
    }
    EXPECT_EQ(printed, "");
}

TEST_F(DoctorProgram, NeverRepeatsWhatStoodBehindAWrongOption) {
    for (const char* const argument :
         {"--conection=UID=a;PWD=geheim", "Password=geheim", "--PWD geheim", "--x;geheim"}) {
        EXPECT_EQ(Run({argument}), exit_code::WrongUse);
        EXPECT_THAT(complaints, Not(HasSubstr("geheim")));
    }
}

}  // namespace
}  // namespace tavrin::doctor
