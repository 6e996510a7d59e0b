#include "rates/evolution_statements.h"

#include "data/text/trim.h"

namespace tavrin::rates {

namespace {

std::string Bracketed(std::string_view currency) {
    return "[" + std::string(data::Trimmed(currency)) + "]";
}

std::string MonthClause(const EvolutionChoice& choice) {
    return choice.month ? "  And Month(Data) = " + std::to_string(*choice.month) : std::string();
}

}  // namespace

std::string LimitsStatement(const EvolutionChoice& choice) {
    const std::string column = Bracketed(choice.currency);
    return "SELECT MIN(" + column + ") AS Minim, MAX(" + column + ") AS Maxim FROM [Curs Valutar] " +
           " Where Year(Data) = " + choice.year + MonthClause(choice);
}

std::string EvolutionStatement(const EvolutionChoice& choice) {
    const std::string column = Bracketed(choice.currency);
    if (choice.month) {
        return "SELECT DAY(Data)  as Data , " + column +
               "  As [Curs valutar] FROM [Curs Valutar] WHERE YEAR(Data) = " + choice.year +
               MonthClause(choice) + " ORDER BY Data ";
    }
    return "SELECT Month(Data)  as Data ,  CONVERT(NVARCHAR,CONVERT(money,AVG(" + column +
           ")), 1)  As [Curs valutar] FROM [Curs Valutar] WHERE YEAR(Data) = " + choice.year +
           " GROUP BY Month(Data)  ORDER BY Data ";
}

std::string CountDaysStatement(const EvolutionChoice& choice) {
    return "SELECT Count(*)  FROM [Curs Valutar] WHERE YEAR(Data) = " + choice.year + MonthClause(choice);
}

}  // namespace tavrin::rates
