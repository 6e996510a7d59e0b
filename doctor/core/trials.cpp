#include "doctor/core/trials.h"

#include <algorithm>
#include <array>
#include <map>
#include <vector>

#include "data/text/date.h"
#include "doctor/core/questions.h"
#include "doctor/core/window_statements.h"
#include "rates/rate_statements.h"

namespace tavrin::doctor {
namespace {

/// What is counted before and after: the rows of the tables that are written, and the columns of one.
std::vector<std::int64_t> Measure(data::Connection& connection) {
    std::vector<std::int64_t> counts;
    for (const char* const table : {"[Curs Valutar]", "LpVal", "Agenda"}) {
        try {
            const std::string question = std::string("SELECT count(*) FROM ") + table;
            counts.push_back(data::ExecuteScalar(connection, question).ToInteger());
        } catch (const data::Error&) {
            counts.push_back(
                -1);  // the login need not be able to read LpVal; what else is wrong is told elsewhere
        }
    }
    return counts;
}

std::vector<std::string> ColumnsOfRates(data::Connection& connection) {
    const data::TablePtr rows = Ask(connection, "SELECT * FROM [Curs Valutar] WHERE 1 = 0");
    std::vector<std::string> columns;
    for (std::size_t field = 0; field < rows->FieldCount(); ++field)
        columns.push_back(rows->FieldName(field));
    return columns;
}

struct State {
    std::vector<std::int64_t> rows;
    std::vector<std::string> columns;
    bool operator==(const State&) const = default;
};

State StateOf(data::Connection& connection) {
    State state{Measure(connection), {}};
    try {
        state.columns = ColumnsOfRates(connection);
    } catch (const data::Error&) {
        // The table is missing, which is told elsewhere.
    }
    return state;
}

/// The rate list takes every column for a currency but the two that are called so.
void TakeCurrencies(StatementSample& sample, const State& state) {
    std::vector<std::string> currencies;
    for (const std::string& column : state.columns)
        if (column != "Data" && column != "Validat") currencies.push_back(column);
    if (!currencies.empty()) sample.currencies = currencies;
    while (std::ranges::find(sample.currencies, sample.newCurrency) != sample.currencies.end())
        sample.newCurrency += "X";
}

bool Exists(data::Connection& connection, const std::string& question) {
    try {
        return Ask(connection, question)->RowCount() > 0;
    } catch (const data::Error&) {
        return false;
    }
}

/// A day and a person that are not there, so that what is tried meets nobody's rows.
StatementSample FreeSample(data::Connection& connection, const State& state, std::int32_t company) {
    StatementSample sample = UnlikelySample();
    sample.company = company;
    TakeCurrencies(sample, state);
    while (Exists(connection, rates::ProbeDayStatement(sample.day)))
        sample.day.days -= 1;
    std::string& given = sample.person[addressbook::PrenumeColumn];
    while (Exists(connection, addressbook::ListStatement(sample.person[addressbook::NumeColumn], given)))
        given += "X";
    return sample;
}

/// One group in a transaction. False where it was refused; the server may then have ended the transaction, so
/// nothing more is run in it.
bool TryGroup(Section& section, ExaminedDatabase& database, const StatementGroup& group) {
    const Trial trial(database);
    for (const std::string& statement : group.statements) {
        try {
            Run(database.Statements(), statement);
        } catch (const data::Error& error) {
            const std::string what = std::string(group.window) + ": " + statement;
            section.Fail(Refused(Same(what), error), AdviceOn(error));
            return false;
        }
    }
    return true;
}

void TryGroups(Section& section, ExaminedDatabase& database, const StatementSample& sample) {
    std::vector<std::pair<std::string, std::size_t>> ran;
    for (const StatementGroup& group : WindowStatements(sample)) {
        if (ran.empty() || ran.back().first != group.window) ran.emplace_back(group.window, 0);
        if (TryGroup(section, database, group)) ran.back().second += group.statements.size();
    }
    for (const auto& [window, count] : ran) {
        if (count == 0) continue;
        const std::string number = std::to_string(count);
        section.Good(
            {window + ": instrucțiuni acceptate: " + number, window + ": statements taken: " + number});
    }
}

/// Whether a row is refused a second time.
enum class Second { Refused, Taken, NeverGotSoFar };

Second TryTwice(ExaminedDatabase& database, const std::string& statement) {
    const Trial trial(database);
    try {
        Run(database.Statements(), statement);
    } catch (const data::Error&) {
        return Second::NeverGotSoFar;
    }
    try {
        Run(database.Statements(), statement);
    } catch (const data::Error&) {
        return Second::Refused;
    }
    return Second::Taken;
}

void TryKeys(Section& section, ExaminedDatabase& database, const StatementSample& sample) {
    const std::string day =
        rates::InsertDayStatement(data::FormatDayMonthYear(sample.day), {{sample.currencies.front(), "1"}});
    const Second secondDay = TryTwice(database, day);
    if (secondDay == Second::Refused)
        section.Good({"o zi nu se poate introduce de două ori", "a day cannot be entered twice"});
    if (secondDay == Second::Taken) {
        section.Warn({"[Curs Valutar] ia o zi de două ori", "[Curs Valutar] takes a day twice"},
                     {"declarați cheia: ALTER TABLE [Curs Valutar] ADD UNIQUE (Data)",
                      "declare the key: ALTER TABLE [Curs Valutar] ADD UNIQUE (Data)"});
    }
    const Second secondPerson = TryTwice(database, addressbook::InsertStatement(sample.person));
    if (secondPerson == Second::Refused)
        section.Good({"o persoană nu se poate introduce de două ori", "a person cannot be entered twice"});
    if (secondPerson == Second::Taken) {
        section.Warn({"Agenda ia o persoană de două ori; s-ar modifica și șterge împreună",
                      "Agenda takes a person twice; both would be changed and deleted together"},
                     {"declarați cheia: ALTER TABLE Agenda ADD UNIQUE (Nume, Prenume)",
                      "declare the key: ALTER TABLE Agenda ADD UNIQUE (Nume, Prenume)"});
    }
}

void TryLetters(Section& section, ExaminedDatabase& database, StatementSample sample) {
    std::string& family = sample.person[addressbook::NumeColumn];
    family += "ăâîşţ";
    const Trial trial(database);
    try {
        Run(database.Statements(), addressbook::InsertStatement(sample.person));
        const data::TablePtr found = Ask(database.Statements(), addressbook::ListStatement(family, "%"));
        if (found->RowCount() == 1 && found->At(0, 0).ToText() == family) {
            section.Good({"agenda păstrează și găsește numele " + family,
                          "the address book keeps and finds the name " + family});
            return;
        }
        section.Fail({"agenda nu păstrează sau nu găsește numele " + family,
                      "the address book does not keep or does not find the name " + family},
                     {"coloanele agendei: nvarchar; baza de date: collation Romanian_CI_AS",
                      "the address book's columns: nvarchar; the database: collation Romanian_CI_AS"});
    } catch (const data::Error&) {
        // The same statements have been tried without these letters, and told of.
    }
}

void Compare(Section& section, const State& before, const State& after) {
    if (before == after) {
        section.Good({"totul a fost anulat: baza de date este cum era",
                      "all was rolled back: the database is as it was"});
        return;
    }
    section.Fail({"baza de date nu mai este cum era: s-au schimbat rânduri sau coloane în timpul verificării",
                  "the database is not as it was: rows or columns changed during the examination"},
                 {"căutați ziua 31.12.2077, persoana Tavrin și moneda XTS și ștergeți-le, dacă nu au lucrat "
                  "alții între timp",
                  "look for the day 31/12/2077, the person Tavrin and the currency XTS and delete them, "
                  "unless others were "
                  "at work meanwhile"});
}

}  // namespace

Section TryStatements(ExaminedDatabase& database, std::int32_t company) {
    Section section{{"Instrucțiunile ferestrelor", "The windows' statements"}, {}};
    data::Connection& connection = database.Statements();
    try {
        const State before = StateOf(connection);
        const StatementSample sample = FreeSample(connection, before, company);
        TryGroups(section, database, sample);
        TryKeys(section, database, sample);
        TryLetters(section, database, sample);
        Compare(section, before, StateOf(connection));
    } catch (const data::Error& error) {
        section.Fail(Refused({"nu se poate începe o tranzacție", "no transaction can be begun"}, error),
                     AdviceOn(error));
    }
    return section;
}

}  // namespace tavrin::doctor
