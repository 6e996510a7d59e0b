#include "doctor/core/window_statements.h"

#include "data/text/date.h"
#include "rates/chooser_statements.h"
#include "rates/evolution_statements.h"
#include "rates/rate_statements.h"

namespace tavrin::doctor {
namespace {

using Groups = std::vector<StatementGroup>;

constexpr const char* List = "CursValutar";
constexpr const char* Entry = "CursValutarDetaliu";
constexpr const char* NewCurrency = "CereMoneda";
constexpr const char* Chooser = "AlegeMoneda";
constexpr const char* Evolution = "EvolutieCurs";
constexpr const char* AddressBook = "Agenda";

std::string ListQuery(const StatementSample& sample) {
    rates::CurrencyNames names;
    for (const std::string& currency : sample.currencies)
        names.Add(currency);
    return rates::ListQuery(names, {sample.day, sample.day});
}

std::vector<rates::RateEntry> SomeRates(const StatementSample& sample) {
    std::vector<rates::RateEntry> entries;
    for (const std::string& currency : sample.currencies)
        entries.push_back({currency, "31,415"});
    return entries;
}

void AddList(Groups& groups, const StatementSample& sample) {
    groups.push_back({List, {rates::FrozenDateStatement(sample.company)}});
    groups.push_back({List, {std::string(rates::ListColumnsStatement)}});
    groups.push_back({List, {ListQuery(sample)}});
    groups.push_back({List, {rates::DeleteDayStatement(data::FormatDayMonthYear(sample.day))}});
}

void AddEntry(Groups& groups, const StatementSample& sample) {
    const std::string day = data::FormatDayMonthYear(sample.day);
    groups.push_back({Entry, {rates::CountDayStatement(sample.day)}});
    groups.push_back({Entry, {rates::ProbeDayStatement(sample.day)}});
    groups.push_back({Entry, {rates::InsertDayStatement(day, SomeRates(sample))}});
    groups.push_back({Entry, {rates::UpdateDayStatement(day, SomeRates(sample))}});
}

void AddNewCurrency(Groups& groups, const StatementSample& sample) {
    groups.push_back(
        {NewCurrency,
         {rates::AddColumnStatement(sample.newCurrency), rates::ZeroColumnStatement(sample.newCurrency),
          rates::RegisterCurrencyStatement(sample.newCurrency)}});
}

void AddChooser(Groups& groups, const StatementSample& sample) {
    groups.push_back({Chooser, {std::string(rates::ColumnsStatement)}});
    for (const std::string& currency : sample.currencies)
        groups.push_back({Chooser, {rates::CurrencyRatesQuery(currency)}});
}

void AddEvolution(Groups& groups, const StatementSample& sample) {
    const data::CalendarDay day = data::ToCalendarDay(sample.day);
    const std::string year = std::to_string(day.year);
    groups.push_back({Evolution, {std::string(rates::RateYearsStatement)}});
    groups.push_back({Evolution, {std::string(rates::FinancialYearsStatement)}});
    groups.push_back({Evolution, {rates::CountDaysStatement({year, day.month, {}})}});
    for (const std::string& currency : sample.currencies) {
        for (const std::optional<int> month : {std::optional<int>(day.month), std::optional<int>()}) {
            groups.push_back({Evolution, {rates::LimitsStatement({year, month, currency})}});
            groups.push_back({Evolution, {rates::EvolutionStatement({year, month, currency})}});
        }
    }
}

void AddAddressBook(Groups& groups, const StatementSample& sample) {
    const std::string& nume = sample.person[addressbook::NumeColumn];
    const std::string& prenume = sample.person[addressbook::PrenumeColumn];
    groups.push_back({AddressBook, {addressbook::ListStatement(nume + "%", "%")}});
    groups.push_back({AddressBook, {addressbook::InsertStatement(sample.person)}});
    groups.push_back({AddressBook, {addressbook::UpdateStatement(sample.person)}});
    groups.push_back({AddressBook, {addressbook::DeleteStatement(nume, prenume)}});
}

}  // namespace

StatementSample UnlikelySample() {
    StatementSample sample;
    sample.day = data::ToOleDate({2077, 12, 31});
    sample.person[addressbook::NumeColumn] = "Tavrin";
    sample.person[addressbook::PrenumeColumn] = "Verificare";
    return sample;
}

std::vector<StatementGroup> WindowStatements(const StatementSample& sample) {
    Groups groups;
    AddList(groups, sample);
    AddEntry(groups, sample);
    AddNewCurrency(groups, sample);
    AddChooser(groups, sample);
    AddEvolution(groups, sample);
    AddAddressBook(groups, sample);
    return groups;
}

}  // namespace tavrin::doctor
