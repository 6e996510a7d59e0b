#include "rates/rate_statements.h"

#include "data/date.h"

namespace tavrin::rates {

namespace {

std::string_view Cut(std::string_view text, std::size_t start, std::size_t length = std::string_view::npos) {
    return start < text.size() ? text.substr(start, length) : std::string_view{};
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

std::string DateFilterClause(data::OleDate from, data::OleDate to) {
    return "Where Data between  '" + data::FormatYearMonthDay(from) + "' and '" +
           data::FormatYearMonthDay(to) + "' ";
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

}  // namespace tavrin::rates
