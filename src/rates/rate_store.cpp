#include "rates/rate_store.h"

#include "data/connection.h"
#include "data/date.h"
#include "rates/rate_statements.h"

namespace tavrin::rates {

data::OleDate RateStore::FrozenDate() const {
    return data::ExecuteScalar(context_.Database(), FrozenDateStatement(context_.companyId)).ToDate();
}

bool RateStore::IsFrozen(data::OleDate day) const {
    return data::RoundedDay(day) <= data::RoundedDay(FrozenDate());
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

data::TablePtr RateStore::Read(std::string_view query) const {
    const auto rows = context_.Database().CreateRecordset();
    rows->Open(query);
    data::TablePtr table = rows->HasRows() ? rows->ReadAll() : nullptr;
    rows->Close();
    return table;
}

void RateStore::DeleteDay(std::string_view dayMonthYear) const {
    context_.Database().Execute(DeleteDayStatement(dayMonthYear));
}

}  // namespace tavrin::rates
