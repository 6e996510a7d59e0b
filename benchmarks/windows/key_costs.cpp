// Keys in the real windows until their effect is painted.

#include <cstdio>
#include <string>

#include "addressbook/addressbook_statements.h"
#include "windows/accounting_host.h"
#include "windows/costs.h"
#include "windows/message_loop.h"

namespace tavrin::bench {

namespace {

constexpr double OneFrame = 16;  // milliseconds

std::string Numbered(const char* text, int number) {
    const std::string digits = std::to_string(number);
    return text + std::string(8 - digits.size(), '0') + digits;
}

void FillBook(host::EmbeddedDatabase& database, int persons) {
    database.Run("DELETE FROM Agenda");
    host::EmbeddedDatabase::Transaction transaction(database);
    for (int i = 0; i < persons; ++i) {
        addressbook::Person person;
        person.fill(Numbered("detail ", i));
        person[0] = Numbered("Nume ", i);
        person[1] = Numbered("Pren ", i);
        database.Run(addressbook::InsertStatement(person));
    }
    transaction.Commit();
}

void TimePersonKey(const char* what, const e2e::Window& grid, WPARAM key) {
    Report::Milliseconds(what, MedianOf([&] { return TimeOfKey(grid, key); }), OneFrame);
}

}  // namespace

void TimePersonKeys(int persons) {
    char heading[80];
    std::snprintf(heading, sizeof heading, "Address book, %d persons: a key until the record is painted",
                  persons);
    Report::Heading(heading);
    AccountingHost host;
    FillBook(host.Data(), persons);
    const e2e::Window palette = host.OpenPalette();
    const e2e::Window book = AccountingHost::Open(palette, "cmdAction(1)", "Agenda");
    const e2e::Window grid = book.Control("Grid");
    TimePersonKey("arrow down", grid, VK_DOWN);
    TimePersonKey("page down", grid, VK_NEXT);
    PressKey(grid, VK_END);
    RunUntilPainted();
    TimePersonKey("arrow up, from the end", grid, VK_UP);
}

void TimeCalculatorKeys() {
    Report::Heading("Calculator: a key until both displays are painted");
    AccountingHost host;
    const e2e::Window palette = host.OpenPalette();
    const e2e::Window window = AccountingHost::Open(palette, "cmdAction(2)", "frmCalculator");
    const e2e::Window key = window.Control("Number(1)");
    const auto clear = [&] {
        TypeCharacter(key, L'C');
        RunUntilPainted();
    };
    Report::Milliseconds("a digit", MedianOf([&] {
                             clear();
                             return MillisecondsOf([&] {
                                 TypeCharacter(key, L'7');
                                 RunUntilPainted();
                             });
                         }),
                         OneFrame);
}

}  // namespace tavrin::bench
