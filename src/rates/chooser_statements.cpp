#include "rates/chooser_statements.h"

namespace tavrin::rates {

namespace {

constexpr std::string_view Filter;
constexpr std::string_view Order = "ORDER BY [Data] DESC";

}  // namespace

std::string CurrencyRatesQuery(std::string_view currency) {
    std::string query = "SELECT COnvert(nvarchar,[Data],103) AS [D], [";
    query += currency;
    query += "] FROM [Curs Valutar] ";
    query += Filter;
    query += " ";
    return query += Order;
}

}  // namespace tavrin::rates
