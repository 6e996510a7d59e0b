// What the windows cost beside the bare database work that they stand on, as medians of rounds taken by
// turns: the rate list's refresh and the address book's opening, search and insertion, as their data grows,
// one key of the calculator, and the reading and writing of notes; and how what grows with long notes, lists
// and charts does. --large adds a million persons. A goal
// that is missed is marked; the exit code does not tell.

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "addressbook/addressbook_statements.h"
#include "addressbook/agenda.h"
#include "alternating.h"
#include "calculator_keys.h"
#include "data/text/number_text.h"
#include "growth.h"
#include "host/embedded/embedded_connection.h"
#include "host/embedded/embedded_database.h"
#include "note_speed.h"
#include "rates/curs_valutar.h"
#include "rates/rate_statements.h"
#include "support/headless_desktop.h"
#include "support/headless_keyboard.h"
#include "support/recording_messages.h"

namespace {

using namespace tavrin;
using addressbook::Agenda;
using rates::CursValutar;

constexpr int Rounds = 7;
constexpr double GoalForLists = 1.15;
constexpr double GoalForKey = 50;

bool goalsAreMet = true;

const char* Judged(double value, double goal) {
    if (value <= goal) return "";
    goalsAreMet = false;
    return "  over the goal";
}

/// The component on a database of its own.
struct Component {
    std::shared_ptr<host::EmbeddedDatabase> database = std::make_shared<host::EmbeddedDatabase>(":memory:");
    std::shared_ptr<host::EmbeddedConnection> connection =
        std::make_shared<host::EmbeddedConnection>(database);
    tests::HeadlessDesktop desktop;
    tests::RecordingMessages messages;
    shell::Application application{desktop, [this] { return messages.CreateService(); }};

    Component() {
        application.context.connection = connection;
        application.context.workDate = data::ToOleDate({2004, 1, 31});
        application.context.workYear = 2003;
    }
};

data::TablePtr ReadBare(data::Connection& connection, std::string_view statement) {
    const auto rows = connection.CreateRecordset();
    rows->Open(statement);
    data::TablePtr table = rows->ReadAll();
    rows->Close();
    return table;
}

// The rate list.

std::string CurrencyName(int number) {
    return "C" + std::to_string(number);
}

/// So many rows, all within the list's thirteen months.
void FillRates(host::EmbeddedDatabase& database, int rows, int currencies) {
    std::string columns;
    for (int i = 0; i < currencies; ++i)
        columns += ", [" + CurrencyName(i) + "] float";
    database.Run("CREATE TABLE [Curs Valutar] (Data datetime NOT NULL PRIMARY KEY, Validat int" + columns +
                 ")");
    host::EmbeddedDatabase::Transaction transaction(database);
    constexpr int days = 390;
    const int perDay = (rows + days - 1) / days;
    for (int row = 0; row < rows; ++row) {
        const data::CalendarDay day =
            data::ToCalendarDay({data::ToOleDate({2003, 1, 1}).days + row / perDay});
        char text[64];
        std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d", day.year, day.month, day.day,
                      row % perDay / 60, row % perDay % 60);
        std::string values = "'" + std::string(text) + "',0";
        for (int i = 0; i < currencies; ++i)
            values += "," + data::NumberText(30000 + row % 977 + i / 4.0);
        database.Run("INSERT INTO [Curs Valutar] VALUES(" + values + ")");
    }
    transaction.Commit();
}

void CompareRateList(int rows, int currencies) {
    Component component;
    FillRates(*component.database, rows, currencies);
    rates::CurrencyNames names;
    for (int i = 0; i < currencies; ++i)
        names.Add(CurrencyName(i));
    auto& list = component.application.Default<CursValutar>();
    list.ShowForm();
    list.dpDataIn.SetDate(data::ToOleDate({2003, 1, 1}));
    list.ApplyDateFilter();
    const std::string query =
        rates::ListQuery(names, {data::ToOleDate({2003, 1, 1}), data::ToOleDate({2004, 1, 31})});
    std::size_t found = 0;
    const bench::Comparison compared = bench::Compare(
        Rounds,
        [&] {
            const auto columns = component.connection->CreateRecordset();
            columns->Open(rates::ListColumnsStatement);
            columns->Close();
            found = ReadBare(*component.connection, query)->RowCount();
        },
        [&] { list.ApplyDateFilter(); });
    const auto shown = static_cast<std::size_t>(list.Grid.Rows()) - 1;
    std::printf("  %7d rows, %2d currencies  %9.2f ms bare  %9.2f ms refresh  ratio %5.3f%s%s\n", rows,
                currencies, compared.bare * 1e3, compared.ours * 1e3, compared.ratio,
                Judged(compared.ratio, GoalForLists), shown == found ? "" : "  NOT ALL ROWS SHOWN");
}

// The address book.

std::string Numbered(const char* text, int number) {
    std::string digits = std::to_string(number);
    return text + std::string(8 - digits.size(), '0') + digits;
}

addressbook::Person PersonOf(int number) {
    addressbook::Person person;
    person.fill(Numbered("detail ", number));
    person[0] = Numbered("Nume ", number);
    person[1] = Numbered("Pren ", number);
    return person;
}

void FillBook(host::EmbeddedDatabase& database, int persons) {
    std::string columns;
    for (const std::string_view column : addressbook::Columns)
        columns.append(std::string(column) + " nvarchar(60), ");
    database.Run("CREATE TABLE Agenda (" + columns + "UNIQUE (Nume, Prenume))");
    host::EmbeddedDatabase::Transaction transaction(database);
    for (int i = 0; i < persons; ++i)
        database.Run(addressbook::InsertStatement(PersonOf(i)));
    transaction.Commit();
}

void Print(const char* what, int persons, const bench::Comparison& compared) {
    std::printf("  %-7s %8d persons  %9.2f ms bare  %9.2f ms window  ratio %5.3f%s\n", what, persons,
                compared.bare * 1e3, compared.ours * 1e3, compared.ratio,
                Judged(compared.ratio, GoalForLists));
}

void CompareOpening(Component& component, int persons) {
    const bench::Comparison compared = bench::Compare(
        Rounds, [&] { ReadBare(*component.connection, addressbook::ListStatement("%", "%")); },
        [&] { component.application.Default<Agenda>().ShowForm(); },
        [&] {
            if (auto* window = component.application.Loaded<Agenda>()) window->Unload();
        });
    Print("open", persons, compared);
}

void CompareSearch(Component& component, int persons) {
    auto& window = component.application.Default<Agenda>();
    window.ShowForm();
    window.TextBoxes[Agenda::SearchNumeBox].SetText("Nume 0%");
    tests::HeadlessKeyboard keyboard(component.desktop);
    const bench::Comparison compared = bench::Compare(
        Rounds, [&] { ReadBare(*component.connection, addressbook::ListStatement("Nume 0%", "%")); },
        [&] {
            window.TextBoxes[Agenda::SearchNumeBox].SetFocus();
            keyboard.Press(forms::key::Enter);
        });
    Print("search", persons, compared);
    window.Unload();
}

/// One person more, found and shown again. The bare work is the statement and the list read anew.
void CompareInsertion(Component& component, int persons) {
    auto& window = component.application.Default<Agenda>();
    window.ShowForm();
    const auto list = component.connection->CreateRecordset();
    list->Open(addressbook::ListStatement("%", "%"));
    int next = 50'000'000;
    const bench::Comparison compared = bench::Compare(
        Rounds,
        [&] {
            component.connection->Execute(addressbook::InsertStatement(PersonOf(next++)));
            list->Requery();
            static_cast<void>(list->ReadAll());
        },
        [&] {
            window.cmdAction[Agenda::Add].Click();
            const addressbook::Person person = PersonOf(next++);
            for (int box = Agenda::FirstColumnBox; box <= Agenda::LastBox; ++box)
                window.TextBoxes[box].SetText(person[static_cast<std::size_t>(box - Agenda::FirstColumnBox)]);
            window.cmdAction[Agenda::Accept].Click();
        });
    Print("insert", persons, compared);
    window.Unload();
}

void CompareAddressBook(int persons) {
    Component component;
    FillBook(*component.database, persons);
    CompareOpening(component, persons);
    CompareSearch(component, persons);
    CompareInsertion(component, persons);
}

// The calculator.

/// Nanoseconds a key.
template <class Displays>
double CostOfKey(std::string_view keys) {
    Displays shown;
    shown.conversion.SetRate(bench::Rate);
    std::vector<calculator::Command> commands;
    for (const char key : keys)
        commands.push_back(tests::TwoDisplays::CommandOf(key));
    constexpr int times = 20000;
    std::vector<double> costs;
    for (int round = 0; round < Rounds + 2; ++round) {
        const double taken = bench::SecondsOf([&] {
            for (int i = 0; i < times; ++i) {
                for (const calculator::Command command : commands)
                    shown.engine.Press(command);
            }
        });
        costs.push_back(taken * 1e9 / times / static_cast<double>(commands.size()));
    }
    return bench::Median(costs);
}

void TimeKeys(const char* what, std::string_view keys) {
    const double cost = CostOfKey<tests::TwoDisplays>(keys);
    std::printf("  %-22s %6.1f ns a key, %6.1f with the texts of both displays%s\n", what, cost,
                CostOfKey<bench::TextDisplays>(keys), Judged(cost, GoalForKey));
}

/// What two displays would cost with the C library alone, without groups.
void TimePrinting() {
    constexpr int times = 200000;
    std::vector<double> costs;
    double number = 1234.56;
    char text[64];
    int length = 0;
    for (int round = 0; round < Rounds + 2; ++round) {
        const double taken = bench::SecondsOf([&] {
            for (int i = 0; i < times; ++i) {
                number += 0.01;
                length += std::snprintf(text, sizeof text, "%.2f", number);
                length += std::snprintf(text, sizeof text, "%.2f", number / bench::Rate);
            }
        });
        costs.push_back(taken * 1e9 / times);
    }
    std::printf("  %-22s %6.1f ns for both numbers%s\n", "the C library alone", bench::Median(costs),
                length > 0 ? "" : ", nothing printed");
}

}  // namespace

int main(int argc, char** argv) {
    const bool large = argc > 1 && std::string_view(argv[1]) == "--large";
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);  // a long run is watched
    std::printf("Medians of %d rounds by turns, processor time.\n", Rounds);
    std::printf("Rate list: the two statements of a refresh, bare and in the window (goal %.2f)\n",
                GoalForLists);
    for (const int currencies : {6, 40}) {
        for (const int rows : {1000, 10000, 100000})
            CompareRateList(rows, currencies);
    }
    std::printf("Address book: its statements, bare and in the window (goal %.2f)\n", GoalForLists);
    for (const int persons : {1000, 10000, 100000})
        CompareAddressBook(persons);
    if (large) CompareAddressBook(1000000);
    std::printf("Calculator: a key to the values of both displays (goal %.0f ns)\n", GoalForKey);
    TimeKeys("a number", bench::Number);
    TimeKeys("a running sum", bench::RunningSum);
    TimeKeys("a percent", bench::Percent);
    TimeKeys("a conversion", bench::Conversion);
    TimePrinting();
    std::printf("Notes: a file of 1 MB\n");
    bench::PrintNoteSpeed(Rounds);
    std::printf("Growth: a unit's cost at 10 and 100 times the work, beside once (goal 1.50)\n");
    goalsAreMet = bench::PrintGrowth(Rounds) && goalsAreMet;
    return goalsAreMet ? 0 : 1;
}
