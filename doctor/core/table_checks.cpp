#include "doctor/core/table_checks.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "addressbook/addressbook_statements.h"
#include "doctor/core/questions.h"

namespace tavrin::doctor {
namespace {

constexpr std::string_view Rates = "Curs Valutar";
constexpr std::string_view FirstCurrencyOfCalculator = "$";
constexpr std::size_t ColumnsBeforeCurrencies = 2;

struct FoundColumn {
    std::string name;
    std::string type;
};

const Text RunTheScript{"rulați examples/database/tables.sql, sau adăugați ce lipsește",
                        "run examples/database/tables.sql, or add what is missing"};

std::string LowerAscii(std::string text) {
    std::ranges::transform(text, text.begin(), [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    });
    return text;
}

bool Holds(ColumnKind kind, const std::string& type) {
    using Names = std::vector<std::string_view>;
    static const Names texts{"char", "varchar", "nchar", "nvarchar"};
    static const Names numbers{"int",  "smallint",   "tinyint", "bigint",  "float",
                               "real", "smallmoney", "money",   "decimal", "numeric"};
    static const Names dates{"datetime", "smalldatetime", "date", "datetime2"};
    const Names& names = kind == ColumnKind::Text ? texts : kind == ColumnKind::Number ? numbers : dates;
    return std::ranges::find(names, LowerAscii(type)) != names.end();
}

Text Meaning(ColumnKind kind) {
    switch (kind) {
        case ColumnKind::Text:
            return {"text (nvarchar)", "text (nvarchar)"};
        case ColumnKind::Number:
            return {"un număr", "a number"};
        case ColumnKind::Date:
            break;
    }
    return {"o dată (datetime)", "a date (datetime)"};
}

/// The names stand here in full, so no quote in them has to be doubled.
std::string ColumnsQuestion(const ExpectedTable& table) {
    const std::string where = table.database.empty() ? "" : table.database + ".";
    return "SELECT COLUMN_NAME, DATA_TYPE, TABLE_SCHEMA FROM " + where +
           "INFORMATION_SCHEMA.COLUMNS WHERE TABLE_NAME = '" + table.name +
           "' ORDER BY TABLE_SCHEMA, ORDINAL_POSITION";
}

/// Where several owners have a table of that name, the one of dbo.
std::vector<FoundColumn> FindColumns(data::Connection& connection, const ExpectedTable& table) {
    const data::TablePtr rows = Ask(connection, ColumnsQuestion(table));
    std::string owner = "dbo";
    const auto ownerOf = [&](std::size_t row) { return rows->At(row, 2).ToText(); };
    bool ofOwner = false;
    for (std::size_t row = 0; row < rows->RowCount(); ++row)
        ofOwner = ofOwner || ownerOf(row) == owner;
    if (!ofOwner && rows->RowCount() > 0) owner = ownerOf(0);
    std::vector<FoundColumn> columns;
    for (std::size_t row = 0; row < rows->RowCount(); ++row) {
        if (ownerOf(row) == owner) columns.push_back({rows->At(row, 0).ToText(), rows->At(row, 1).ToText()});
    }
    return columns;
}

const FoundColumn* Find(const std::vector<FoundColumn>& columns, std::string_view name) {
    const auto same = [&](const FoundColumn& column) {
        return LowerAscii(column.name) == LowerAscii(std::string(name));
    };
    const auto found = std::ranges::find_if(columns, same);
    return found == columns.end() ? nullptr : &*found;
}

void ExamineColumn(Section& section, const ExpectedTable& table, const ExpectedColumn& expected,
                   const std::vector<FoundColumn>& columns) {
    const std::string name = table.FullName() + ", " + expected.name;
    const FoundColumn* const found = Find(columns, expected.name);
    if (found == nullptr) {
        section.Fail({name + ": coloana lipsește", name + ": the column is missing"}, RunTheScript);
    } else if (!Holds(expected.kind, found->type)) {
        const Text meaning = Meaning(expected.kind);
        section.Fail({name + " este " + found->type + ", nu " + meaning.romanian,
                      name + " is " + found->type + ", not " + meaning.english},
                     {"schimbați tipul coloanei", "change the column's type"});
    }
}

void ExamineOrder(Section& section, const std::vector<FoundColumn>& columns) {
    const Text advice{
        "refaceți tabela: Data, Validat, apoi monedele; numele se compară literal",
        "make the table anew: Data, Validat, then the currencies; names count letter for letter"};
    if (columns[0].name != "Data") {
        section.Fail({"[Curs Valutar]: prima coloana este " + columns[0].name + ", nu Data",
                      "[Curs Valutar]: the first column is " + columns[0].name + ", not Data"},
                     advice);
    }
    if (columns.size() < ColumnsBeforeCurrencies || columns[1].name == "Validat") return;
    const std::string& second = columns[1].name;
    section.Fail({"[Curs Valutar]: a doua coloana este " + second +
                      ", nu Validat; lista o ia drept monedă, celelalte ferestre o trec peste",
                  "[Curs Valutar]: the second column is " + second +
                      ", not Validat; the list takes it for a currency, other windows pass over it"},
                 advice);
}

void ExamineCurrency(Section& section, const FoundColumn& currency) {
    const std::string name = "[Curs Valutar], " + currency.name;
    if (!Holds(ColumnKind::Number, currency.type)) {
        section.Fail(
            {name + " este " + currency.type + ", nu float", name + " is " + currency.type + ", not float"},
            {"de la a treia coloană încolo stau numai monede; schimbați tipul, sau mutați coloana",
             "from the third column on there are only currencies; change the type, or move the column"});
    } else if (LowerAscii(currency.type) != "float") {
        section.Warn(
            {name + " este " + currency.type + ", nu float", name + " is " + currency.type + ", not float"},
            {"cursurile se pot rotunji; schimbați tipul în float",
             "rates may be rounded; change the type to float"});
    }
}

void ExamineCurrencies(Section& section, const std::vector<FoundColumn>& columns) {
    for (std::size_t column = ColumnsBeforeCurrencies; column < columns.size(); ++column)
        ExamineCurrency(section, columns[column]);
    if (columns.size() <= ColumnsBeforeCurrencies)
        section.Fail({"[Curs Valutar] nu are nicio monedă", "[Curs Valutar] has no currency"}, RunTheScript);
    if (Find(columns, FirstCurrencyOfCalculator) == nullptr) {
        section.Fail(
            {"[Curs Valutar] nu are coloana $, pe care calculatorul o cere întâi",
             "[Curs Valutar] has no column $, which the calculator asks for first"},
            {"ALTER TABLE [Curs Valutar] ADD [$] float", "ALTER TABLE [Curs Valutar] ADD [$] float"});
    }
}

void ExamineTable(Section& section, const ExpectedTable& table, data::Connection& connection) {
    const std::vector<FoundColumn> columns = FindColumns(connection, table);
    const std::string name = table.FullName();
    if (columns.empty()) {
        section.Fail({name + ": tabela lipsește, sau contul nu are niciun drept asupra ei",
                      name + ": the table is missing, or the login has no right on it"},
                     RunTheScript);
        return;
    }
    const std::size_t before = section.findings.size();
    for (const ExpectedColumn& expected : table.columns)
        ExamineColumn(section, table, expected, columns);
    if (table.name == Rates) {
        ExamineOrder(section, columns);
        ExamineCurrencies(section, columns);
    }
    const std::string count = std::to_string(columns.size());
    if (section.findings.size() == before) {
        section.Good(
            {name + ": cum trebuie, coloane: " + count, name + ": as it must be, columns: " + count});
    }
}

ExpectedTable AddressBookTable() {
    ExpectedTable table{"", "Agenda", {}};
    for (const std::string_view column : addressbook::Columns)
        table.columns.push_back({std::string(column), ColumnKind::Text});
    return table;
}

}  // namespace

std::string ExpectedTable::FullName() const {
    const std::string written = name.find(' ') == std::string::npos ? name : "[" + name + "]";
    return database.empty() ? written : database + ".dbo." + written;
}

std::vector<ExpectedTable> ExpectedTables() {
    return {{"", std::string(Rates), {{"Data", ColumnKind::Date}}},
            {"", "LpVal", {{"Valuta", ColumnKind::Text}, {"Curs", ColumnKind::Number}}},
            {"", "An", {{"An", ColumnKind::Number}}},
            {"AdmQuadrel", "Societati", {{"Id", ColumnKind::Number}, {"Curs", ColumnKind::Date}}},
            AddressBookTable()};
}

Section ExamineTables(data::Connection& connection) {
    Section section{{"Tabele", "Tables"}, {}};
    for (const ExpectedTable& table : ExpectedTables()) {
        try {
            ExamineTable(section, table, connection);
        } catch (const data::Error& error) {
            section.Fail(Refused({table.FullName() + ": coloanele nu se pot citi",
                                  table.FullName() + ": the columns cannot be read"},
                                 error),
                         AdviceOn(error));
        }
    }
    return section;
}

}  // namespace tavrin::doctor
