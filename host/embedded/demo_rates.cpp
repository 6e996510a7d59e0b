#include "host/embedded/demo_rates.h"

#include <array>
#include <cmath>
#include <random>

#include "data/text/date.h"

namespace tavrin::host {
namespace {

struct Trend {
    const char* currency;
    std::uint32_t seed;  ///< of how the rate strays
    double first;        ///< lei for one unit on the first day
    double last;         ///< at the end of the last year
};

constexpr std::array<Trend, 6> Trends{{{"EUR", 1, 25200, 40600},
                                       {"USD", 2, 26300, 32900},
                                       {"GBP", 3, 38700, 57400},
                                       {"CHF", 4, 16600, 26100},
                                       {"JPY", 5, 228, 304},
                                       {"$", 2, 26300, 32900}}};

/// A rate that strays from its trend and is drawn back to it.
class RandomWalk {
  public:
    explicit RandomWalk(const Trend& trend) : trend_(trend), random_(trend.seed) {}

    /// \param progress from 0 on the first day to 1 at the end of the last year
    long long Next(double progress) {
        const double step = static_cast<double>(random_() % 2001) / 1000.0 - 1.0;
        deviation_ = deviation_ * 0.97 + step * 0.0025;
        const double onTrend = trend_.first + (trend_.last - trend_.first) * progress;
        return std::llround(onTrend * (1 + deviation_));
    }

  private:
    Trend trend_;
    std::mt19937 random_;
    double deviation_ = 0;  ///< as a share of the trend
};

bool IsWorkingDay(double day) {
    const int weekday = static_cast<int>(std::fmod(day, 7));  // 0 is a Saturday, 1 a Sunday
    const data::CalendarDay date = data::ToCalendarDay({day});
    const bool newYear = date.month == 1 && date.day <= 2;
    const bool nationalDay = date.month == 12 && date.day == 1;
    const bool christmas = date.month == 12 && (date.day == 25 || date.day == 26);
    return weekday > 1 && !newYear && !nationalDay && !christmas;
}

void CreateRateTables(EmbeddedDatabase& database) {
    std::string columns = "[Data] datetime PRIMARY KEY, Validat int";
    for (const Trend& trend : Trends)
        columns += std::string(", [") + trend.currency + "] float";
    database.Run("CREATE TABLE [Curs Valutar] (" + columns + ")");
    database.Run("CREATE TABLE LpVal (Valuta nvarchar(10) PRIMARY KEY, Curs float)");
}

}  // namespace

void CreateDemoRates(EmbeddedDatabase& database) {
    CreateRateTables(database);
    std::vector<RandomWalk> walks;
    walks.reserve(Trends.size());
    for (const Trend& trend : Trends)
        walks.emplace_back(trend);
    const double first = data::ToOleDate({DemoFirstYear, 1, 1}).days;
    const double last = data::ToOleDate({DemoLastYear, 12, 31}).days;
    const double today = data::ToOleDate(DemoDay).days;
    const double validated = data::ToOleDate({2003, 3, 31}).days;
    std::array<long long, Trends.size()> rates{};
    for (double day = first; day < today; ++day) {
        if (!IsWorkingDay(day)) continue;
        std::string values = "'" + data::FormatYearMonthDay({day}) + "', " + (day <= validated ? "1" : "0");
        for (std::size_t index = 0; index < walks.size(); ++index) {
            rates[index] = walks[index].Next((day - first) / (last - first));
            values += ", " + std::to_string(rates[index]);
        }
        database.Run("INSERT INTO [Curs Valutar] VALUES (" + values + ")");
    }
    for (std::size_t index = 0; index < rates.size(); ++index) {
        database.Run(std::string("INSERT INTO LpVal VALUES ('") + Trends[index].currency + "', " +
                     std::to_string(rates[index]) + ")");
    }
}

}  // namespace tavrin::host
