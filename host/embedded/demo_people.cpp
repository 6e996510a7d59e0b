#include "host/embedded/demo_people.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "host/embedded/text_rules.h"

namespace tavrin::host {
namespace {

// The letters are those of code page 1250, which a server with a Romanian collation keeps: ş and ţ have a
// cedilla.
constexpr auto Families = std::to_array<std::string_view>(
    {"Albu",  "Anghel",  "Barbu",  "Călinescu", "Ciobanu",   "Constantin", "Cristea", "Dima",
     "Dobre", "Dumitru", "Enache", "Florea",    "Georgescu", "Grigore",    "Ilie",    "Ionescu",
     "Lazăr", "Lungu",   "Manole", "Marin",     "Matei",     "Munteanu",   "Neagu",   "Nistor",
     "Pop",   "Popescu", "Rusu",   "Sandu",     "Şerban",    "Ţurcanu"});

constexpr auto GivenNames = std::to_array<std::string_view>(
    {"Adrian", "Alina",   "Ana",   "Andrei", "Bogdan",   "Carmen", "Cătălin", "Cristina",
     "Dan",    "Daniela", "Elena", "Florin", "Gabriela", "Ioana",  "Ion",     "Irina",
     "Laura",  "Maria",   "Mihai", "Radu",   "Ştefan",   "Tudor",  "Vasile",  "Viorica"});

struct Town {
    std::string_view name;
    std::string_view county;
    std::string_view prefix;  ///< of telephone numbers
};

constexpr auto Towns = std::to_array<Town>({{"Bucureşti", "Bucureşti", "021"},
                                            {"Cluj-Napoca", "Cluj", "0264"},
                                            {"Iaşi", "Iaşi", "0232"},
                                            {"Timişoara", "Timiş", "0256"},
                                            {"Constanţa", "Constanţa", "0241"},
                                            {"Craiova", "Dolj", "0251"},
                                            {"Braşov", "Braşov", "0268"},
                                            {"Galaţi", "Galaţi", "0236"},
                                            {"Oradea", "Bihor", "0259"},
                                            {"Suceava", "Suceava", "0230"},
                                            {"Târgu Mureş", "Mureş", "0265"}});

constexpr auto Streets = std::to_array<std::string_view>(
    {"Florilor", "Lungă", "Morii", "Păcii", "Primăverii", "Teilor", "Viilor"});

constexpr auto Trades = std::to_array<std::string_view>(
    {"Agro", "Birotică", "Construct", "Mobilă", "Panificaţie", "Textil", "Transport", "Turism"});

constexpr auto Departments =
    std::to_array<std::pair<std::string_view, std::string_view>>({{"Contabilitate", "Contabil"},
                                                                  {"Contabilitate", "Economist"},
                                                                  {"Desfacere", "Agent de vânzări"},
                                                                  {"Aprovizionare", "Merceolog"},
                                                                  {"Secretariat", "Secretar"},
                                                                  {"Conducere", "Director"}});

// Steps through all pairs of names in a mixed order; it shares no factor with their count.
constexpr std::size_t PairStep = 37;
static_assert(Families.size() * GivenNames.size() % PairStep != 0);
static_assert(Families.size() * GivenNames.size() >= DemoPeople);

template <class List>
std::string Pick(const List& list, std::size_t number) {
    return std::string(list[number % list.size()]);
}

std::string WithoutAccents(std::string text) {
    static constexpr auto Plain = std::to_array<std::pair<std::string_view, char>>(
        {{"ă", 'a'}, {"â", 'a'}, {"î", 'i'}, {"ş", 's'}, {"ţ", 't'}});
    text = FoldCase(text);
    for (const auto& [accented, letter] : Plain) {
        for (std::size_t at = text.find(accented); at != std::string::npos; at = text.find(accented)) {
            text.replace(at, accented.size(), 1, letter);
        }
    }
    return text;
}

std::string ThreeDigits(std::size_t number) {
    return std::to_string(1000 + number % 1000).substr(1);
}

std::string Address(std::size_t number) {
    return "Str. " + Pick(Streets, number) + " nr. " + std::to_string(number % 89 + 1);
}

std::string Quoted(const std::vector<std::string>& values) {
    std::string list;
    for (const std::string& value : values)
        list += (list.empty() ? "'" : ", '") + value + "'";
    return list;
}

/// The sixteen values of a person. Every fifth has no firm, every third no telephone at home.
std::vector<std::string> Person(std::size_t number) {
    const std::size_t pair = number * PairStep % (Families.size() * GivenNames.size());
    const std::string family = Pick(Families, pair / GivenNames.size());
    const std::string given = Pick(GivenNames, pair);
    const Town& home = Towns[number * 5 % Towns.size()];
    const std::string number3 = ThreeDigits(number);
    std::vector<std::string> values{family,
                                    given,
                                    Address(number),
                                    std::string(home.name),
                                    std::string(home.county),
                                    number % 3 == 0 ? "" : std::string(home.prefix) + "/000" + number3,
                                    "0700/000" + number3,
                                    WithoutAccents(given + "." + family) + "@example.ro"};
    if (number % 5 == 0) {
        values.resize(16);
        return values;
    }
    const Town& work = Towns[number * 3 % Towns.size()];
    const auto& [department, job] = Departments[number % Departments.size()];
    values.push_back("Exemplu " + Pick(Trades, number) + " SRL");
    values.push_back(Address(number * 7 + 1));
    values.emplace_back(work.name);
    values.emplace_back(work.county);
    values.push_back(std::string(work.prefix) + "/111" + number3);
    values.push_back(std::string(work.prefix) + "/112" + number3);
    values.emplace_back(department);
    values.emplace_back(job);
    return values;
}

}  // namespace

void CreateDemoPeople(EmbeddedDatabase& database) {
    database.Run(
        "CREATE TABLE Agenda (Nume nvarchar(50), Prenume nvarchar(50), AdresaHome nvarchar(100), OrasHome "
        "nvarchar(50), JudetHome nvarchar(50), TelefonAcasa nvarchar(30), TelefonMobil nvarchar(30), Email "
        "nvarchar(100), DescriereFirma nvarchar(100), AdresaFirma nvarchar(100), OrasFirma nvarchar(50), "
        "JudetFirma nvarchar(50), Telefon nvarchar(30), Fax nvarchar(30), Departament nvarchar(50), Functie "
        "nvarchar(50), PRIMARY KEY (Nume, Prenume))");
    for (std::size_t number = 0; number < DemoPeople; ++number) {
        database.Run("INSERT INTO Agenda VALUES (" + Quoted(Person(number)) + ")");
    }
}

}  // namespace tavrin::host
