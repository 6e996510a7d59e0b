#include "proofs/network.h"

#include <array>
#include <cstdio>
#include <memory>

#include "addressbook/addressbook_statements.h"
#include "data/text/date.h"
#include "proofs/flows.h"

namespace tavrin::tests {
namespace {

constexpr int Days = 2500;
constexpr int Persons = 1000;

void AddRates(host::EmbeddedDatabase& database) {
    const double first = data::ToOleDate({1993, 4, 5}).days;  // a Monday
    for (int i = 0; i < Days; ++i) {
        const int weeks = i / 5;
        const data::CalendarDay day = data::ToCalendarDay({first + 7 * weeks + i % 5});
        std::array<char, 100> statement{};
        std::snprintf(statement.data(), statement.size(),
                      "INSERT INTO [Curs Valutar] VALUES('%02d-%02d-%d',0,%d,%d.5,%d)", day.month, day.day,
                      day.year, 20000 + i, 18000 + i, 18000 + i);
        database.Run(statement.data());
    }
}

void AddPersons(host::EmbeddedDatabase& database) {
    for (int i = 0; i < Persons; ++i) {
        addressbook::Person person = {"Marinescu" + std::to_string(i), "Ioana"};
        for (std::size_t column = addressbook::FirstDetailColumn; column < person.size(); ++column)
            person[column] = "Bulevardul " + std::to_string(i);
        database.Run(addressbook::InsertStatement(person));
    }
}

void FillCompany(host::EmbeddedDatabase& database) {
    AddRates(database);
    AddPersons(database);
}

host::Traffic Since(const host::Traffic& before, const host::Traffic& now) {
    return {.statements = now.statements - before.statements,
            .roundTrips = now.roundTrips - before.roundTrips,
            .bytes = now.bytes - before.bytes};
}

std::string Seconds(const host::Traffic& traffic, const host::LineSpeed& speed) {
    std::array<char, 30> text{};
    const std::chrono::duration<double> seconds = traffic.TimeOn(speed);
    std::snprintf(text.data(), text.size(), "%.4f", seconds.count());
    return text.data();
}

}  // namespace

std::vector<NetworkCost> MeasureNetworkCosts() {
    const auto line = std::make_shared<host::Line>();
    const auto asked = std::make_shared<Asked>();
    UserSession session({.fill = FillCompany, .line = line, .asked = asked});
    std::vector<NetworkCost> costs;
    for (const Flow& flow : AllFlows()) {
        session.Restart();
        session.Apel();
        flow.prepare(session);
        const host::Traffic before = line->Passed();
        *asked = {};
        flow.act(session);
        costs.push_back({flow.name, Since(before, line->Passed()), *asked});
    }
    return costs;
}

std::vector<std::string> NetworkTable(const std::vector<NetworkCost>& costs) {
    std::vector<std::string> lines;
    for (const auto& [action, traffic, asked] : costs) {
        if (traffic.statements == 0) continue;
        lines.push_back("| " + action + " | " + std::to_string(traffic.statements) + " | " +
                        std::to_string(traffic.roundTrips) + " | " + std::to_string(traffic.bytes) + " | " +
                        Seconds(traffic, host::LocalNetwork) + " | " + Seconds(traffic, host::BranchOffice) +
                        " |");
    }
    return lines;
}

}  // namespace tavrin::tests
