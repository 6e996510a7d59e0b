#include "rates/rate_store.h"

#include "data/connection.h"
#include "data/error.h"
#include "data/text/date.h"
#include "rates/chooser_statements.h"
#include "rates/evolution_statements.h"
#include "rates/rate_statements.h"
#include "rates/rate_text.h"

namespace tavrin::rates {

data::OleDate RateStore::FrozenDate() const {
    return data::ExecuteScalar(context_.Database(), FrozenDateStatement(context_.companyId)).ToDate();
}

CurrencyNames RateStore::DiscoverCurrencies() const {
    const auto columns = context_.Database().CreateRecordset();
    columns->Open(ListColumnsStatement);
    CurrencyNames currencies;
    const std::size_t count = columns->FieldCount();
    for (std::size_t i = 0; i < count; ++i) {
        std::string name = columns->FieldName(i);
        if (name != "Validat" && name != "Data") currencies.Add(std::move(name));
    }
    columns->Close();
    return currencies;
}

data::TablePtr RateStore::ReadDays(const CurrencyNames& currencies, const DateRange& range) const {
    return Read(ListQuery(currencies, range));
}

data::TablePtr RateStore::ReadRates(std::string_view currency) const {
    return Read(CurrencyRatesQuery(currency));
}

data::TablePtr RateStore::ReadEvolution(const EvolutionChoice& choice) const {
    return Read(EvolutionStatement(choice), 2);
}

std::vector<std::string> RateStore::ReadYears() const {
    const data::TablePtr table = Read(RateYearsStatement);
    if (!table) return {data::ExecuteScalar(context_.Database(), FinancialYearsStatement).ToText()};
    std::vector<std::string> years;
    for (std::size_t row = 0; row < table->RowCount(); ++row)
        years.push_back(table->At(row, 0).ToText());
    return years;
}

RateLimits RateStore::ReadLimits(const EvolutionChoice& choice) const {
    const data::TablePtr limits = Read(LimitsStatement(choice), 2);
    if (!limits) return {};
    return {.lowest = RateOf(limits->At(0, 0)).value_or(0), .highest = RateOf(limits->At(0, 1)).value_or(0)};
}

std::int64_t RateStore::CountDays(const EvolutionChoice& choice) const {
    return data::ExecuteScalar(context_.Database(), CountDaysStatement(choice)).ToInteger();
}

data::TablePtr RateStore::Read(std::string_view query, std::size_t fields) const {
    const auto rows = context_.Database().CreateRecordset();
    rows->Open(query);
    data::TablePtr table = rows->HasRows() ? rows->ReadAll() : nullptr;
    rows->Close();
    // A provider may count rows that it then does not give.
    if (table == nullptr || table->RowCount() == 0) return nullptr;
    // The caller will look at so many of each row.
    if (table->FieldCount() < fields) throw data::RuntimeError(data::error_number::ItemNotFound);
    return table;
}

std::int64_t RateStore::CountDay(data::OleDate day) const {
    return data::ExecuteScalar(context_.Database(), CountDayStatement(day)).ToInteger();
}

bool RateStore::DayExists(data::OleDate day) const {
    return context_.Database().Execute(ProbeDayStatement(day))->HasRows();
}

void RateStore::DeleteDay(data::OleDate day) const {
    context_.Database().Execute(DeleteDayStatement(data::FormatDayMonthYear(day)));
}

void RateStore::InsertDay(data::OleDate day, const std::vector<RateEntry>& rates) const {
    context_.Database().Execute(InsertDayStatement(data::FormatDayMonthYear(day), rates));
}

void RateStore::UpdateDay(data::OleDate day, const std::vector<RateEntry>& rates) const {
    context_.Database().Execute(UpdateDayStatement(data::FormatDayMonthYear(day), rates));
}

std::vector<std::string> RateStore::ColumnsAfterSecond() const {
    constexpr std::size_t Skipped = 2;
    const auto columns = context_.Database().CreateRecordset();
    columns->Open(ColumnsStatement);
    std::vector<std::string> names;
    const std::size_t count = columns->FieldCount();
    for (std::size_t i = Skipped; i < count; ++i)
        names.push_back(columns->FieldName(i));
    columns->Close();
    return names;
}

void RateStore::AddCurrency(std::string_view currency) const {
    data::Connection& database = context_.Database();
    database.Execute(AddColumnStatement(currency));
    database.Execute(ZeroColumnStatement(currency));
    database.Execute(RegisterCurrencyStatement(currency));
}

}  // namespace tavrin::rates
