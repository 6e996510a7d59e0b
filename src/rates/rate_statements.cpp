#include "rates/rate_statements.h"

#include "data/text/date.h"
#include "data/text/trim.h"

namespace tavrin::rates {

namespace {

std::string_view Cut(std::string_view text, std::size_t start, std::size_t length = std::string_view::npos) {
    return start < text.size() ? text.substr(start, length) : std::string_view{};
}

/// The number of a shown value: its thousands separators are the display's, not the database's.
std::string PlainValue(std::string value) {
    std::erase(value, ',');
    return std::string(data::Trimmed(value));
}

}  // namespace

std::string FrozenDateStatement(std::int32_t companyId) {
    return "SELECT IsNull([Curs], COnvert(smalldatetime,'12:00')) FROM AdmQuadrel.dbo.Societati WHERE Id  =" +
           std::to_string(companyId);
}

std::string ListBaseQuery(const CurrencyNames& currencies) {
    std::string query = "SELECT COnvert(nvarchar,[Data],103) AS [D], [Data] ";
    for (int i = CurrencyNames::FirstCurrency; i <= currencies.UpperBound(); ++i) {
        query += ", [" + currencies[i] + "] ";
    }
    return query + " FROM [Curs Valutar]";
}

std::string DateFilterClause(const DateRange& range) {
    return "Where Data between  '" + data::FormatYearMonthDay(range.first) + "' and '" +
           data::FormatYearMonthDay(range.last) + "' ";
}

std::string ListQuery(const CurrencyNames& currencies, const DateRange& range) {
    std::string query = ListBaseQuery(currencies) + " " + DateFilterClause(range) + " ";
    return query += ListOrderClause;
}

std::string MonthDayYear(std::string_view dayMonthYear) {
    std::string text(Cut(dayMonthYear, 3, 2));
    text += '-';
    text += Cut(dayMonthYear, 0, 2);
    text += '-';
    text += Cut(dayMonthYear, 6);
    return text;
}

std::string DeleteDayStatement(std::string_view dayMonthYear) {
    return "DELETE FROM [Curs Valutar] WHERE [Data] = '" + MonthDayYear(dayMonthYear) + "'";
}

std::string CountDayStatement(data::OleDate day) {
    return "Select count(*) from [Curs Valutar] where data ='" + data::FormatYearMonthDay(day) + "'";
}

std::string ProbeDayStatement(data::OleDate day) {
    return "SELECT 'x' FROM [Curs Valutar] Where [Data] = '" + data::FormatYearMonthDay(day) + "'";
}

std::string InsertDayStatement(std::string_view dayMonthYear, const std::vector<RateEntry>& rates) {
    std::string statement = "INSERT INTO [Curs Valutar]([Data]";
    for (const RateEntry& rate : rates)
        statement += ",[" + rate.currency + "]";
    statement += ") VALUES('" + MonthDayYear(dayMonthYear) + "'";
    for (const RateEntry& rate : rates)
        statement += "," + PlainValue(rate.value);
    return statement + ")";
}

std::string UpdateDayStatement(std::string_view dayMonthYear, const std::vector<RateEntry>& rates) {
    std::string statement = "UPDATE [Curs Valutar] SET ";
    for (std::size_t i = 0; i < rates.size(); ++i) {
        statement +=
            "[" + std::string(data::Trimmed(rates[i].currency)) + "] = " + PlainValue(rates[i].value);
        statement += i + 1 < rates.size() ? ", " : " ";
    }
    return statement + " WHERE [Data] = '" + MonthDayYear(dayMonthYear) + "'";
}

std::string AddColumnStatement(std::string_view currency) {
    return "ALTER TABLE [Curs Valutar] ADD  [" + std::string(currency) + "] float";
}

std::string ZeroColumnStatement(std::string_view currency) {
    return "UPDATE [Curs Valutar] SET [" + std::string(currency) + "] = 0";
}

std::string RegisterCurrencyStatement(std::string_view currency) {
    return "INSERT INTO LpVal (Valuta, Curs) VALUES ('" + std::string(currency) + "', 0)";
}

}  // namespace tavrin::rates
