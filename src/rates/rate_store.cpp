#include "rates/rate_store.h"

#include "data/connection.h"
#include "data/date.h"
#include "data/error.h"
#include "rates/rate_statements.h"

namespace tavrin::rates {

data::OleDate RateStore::FrozenDate() const {
    return data::ExecuteScalar(context_.Database(), FrozenDateStatement(context_.companyId)).ToDate();
}

CurrencyNames RateStore::DiscoverCurrencies() const {
    const auto columns = context_.Database().CreateRecordset();
    columns->Open(ListColumnsStatement);
    CurrencyNames currencies;
    for (std::size_t i = 0; i < columns->FieldCount(); ++i) {
        std::string name = columns->FieldName(i);
        if (name != "Validat" && name != "Data") currencies.Add(std::move(name));
    }
    columns->Close();
    return currencies;
}

data::TablePtr RateStore::Read(std::string_view query, std::size_t fields) const {
    const auto rows = context_.Database().CreateRecordset();
    rows->Open(query);
    data::TablePtr table = rows->HasRows() ? rows->ReadAll() : nullptr;
    rows->Close();
    // A provider may count rows that it then does not give.
    if (table == nullptr || table->RowCount() == 0) return nullptr;
    if (table->FieldCount() < fields) throw data::RuntimeError(data::error_number::ItemNotFound);
    return table;
}

std::int64_t RateStore::CountDay(data::OleDate day) const {
    return data::ExecuteScalar(context_.Database(), CountDayStatement(day)).ToInteger();
}

bool RateStore::DayExists(data::OleDate day) const {
    return context_.Database().Execute(ProbeDayStatement(day))->HasRows();
}

void RateStore::DeleteDay(std::string_view dayMonthYear) const {
    context_.Database().Execute(DeleteDayStatement(dayMonthYear));
}

void RateStore::InsertDay(std::string_view dayMonthYear, const std::vector<RateEntry>& rates) const {
    context_.Database().Execute(InsertDayStatement(dayMonthYear, rates));
}

void RateStore::UpdateDay(std::string_view dayMonthYear, const std::vector<RateEntry>& rates) const {
    context_.Database().Execute(UpdateDayStatement(dayMonthYear, rates));
}

std::vector<std::string> RateStore::ColumnsAfterSecond() const {
    constexpr std::size_t Skipped = 2;
    const auto columns = context_.Database().CreateRecordset();
    columns->Open(ColumnsStatement);
    std::vector<std::string> names;
    for (std::size_t i = Skipped; i < columns->FieldCount(); ++i)
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
