#include "doctor/core/database_examination.h"

#include "doctor/core/questions.h"
#include "doctor/core/server_checks.h"
#include "doctor/core/table_checks.h"
#include "doctor/core/trials.h"
#include "rates/rate_statements.h"

namespace tavrin::doctor {
namespace {

constexpr std::int32_t NobodysCompany = -1;

std::int32_t LowestCompany(data::Connection& connection) {
    const data::TablePtr lowest = Ask(connection, "SELECT MIN(Id) FROM AdmQuadrel.dbo.Societati");
    if (lowest->RowCount() == 0 || lowest->At(0, 0).IsNull()) return NobodysCompany;
    return static_cast<std::int32_t>(lowest->At(0, 0).ToInteger());
}

/// The company whose statements are tried.
std::int32_t ExamineCompany(Section& section, data::Connection& connection,
                            std::optional<std::int32_t> asked) {
    std::int32_t company = asked.value_or(NobodysCompany);
    try {
        if (!asked) company = LowestCompany(connection);
        const data::TablePtr frozen = Ask(connection, rates::FrozenDateStatement(company));
        const std::string id = std::to_string(company);
        if (frozen->RowCount() > 0) {
            section.Good({"societatea " + id + ": cursuri validate până la " + frozen->At(0, 0).ToText(),
                          "company " + id + ": rates validated up to " + frozen->At(0, 0).ToText()});
        } else {
            const std::string which = asked ? " Id " + id : "";
            section.Fail(
                {"AdmQuadrel.dbo.Societati nu are niciun rând" + which,
                 "AdmQuadrel.dbo.Societati has no row" + which},
                {"adăugați societatea; fără ea nu se poate introduce, modifica sau șterge niciun curs",
                 "add the company; without it no rate can be entered, changed or deleted"});
        }
    } catch (const data::Error& error) {
        section.Fail(Refused({"societatea nu se poate citi", "the company cannot be read"}, error),
                     AdviceOn(error));
    }
    return company;
}

}  // namespace

Report ExamineDatabase(ExaminedDatabase& database, std::optional<std::int32_t> company) {
    data::Connection& connection = database.Statements();
    Report report{ExamineServer(connection), ExamineTables(connection)};
    Section companies{{"Societatea", "The company"}, {}};
    const std::int32_t found = ExamineCompany(companies, connection, company);
    report.push_back(std::move(companies));
    report.push_back(TryStatements(database, found));
    return report;
}

}  // namespace tavrin::doctor
