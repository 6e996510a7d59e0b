#include "host/embedded/sqlite_functions.h"

#include <array>
#include <string>
#include <string_view>

#include "data/text/date.h"
#include "host/embedded/dialect/function_names.h"
#include "host/embedded/dialect/provider_error.h"
#include "host/embedded/money_text.h"
#include "host/embedded/sqlite_statement.h"
#include "host/embedded/text_rules.h"

namespace tavrin::host {
namespace {

namespace names = dialect::function_name;

std::string_view TextOf(sqlite3_value* value) {
    const unsigned char* const text = sqlite3_value_text(value);
    const auto length = static_cast<std::size_t>(sqlite3_value_bytes(value));
    return text == nullptr ? std::string_view{}
                           : std::string_view(reinterpret_cast<const char*>(text), length);
}

data::CalendarDay DayOf(sqlite3_value* value) {
    return data::ToCalendarDay({sqlite3_value_double(value)});
}

void AnswerText(sqlite3_context* context, const std::string& text) {
    sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void Raise(sqlite3_context* context, const data::Error& error) {
    *static_cast<PendingError*>(sqlite3_user_data(context)) = error;
    sqlite3_result_error(context, error.what(), -1);
}

using Arguments = sqlite3_value**;

void Year(sqlite3_context* context, Arguments arguments) {
    sqlite3_result_int(context, DayOf(arguments[0]).year);
}

void Month(sqlite3_context* context, Arguments arguments) {
    sqlite3_result_int(context, DayOf(arguments[0]).month);
}

void Day(sqlite3_context* context, Arguments arguments) {
    sqlite3_result_int(context, DayOf(arguments[0]).day);
}

void DateText(sqlite3_context* context, Arguments arguments) {
    AnswerText(context, data::FormatDayMonthYear({sqlite3_value_double(arguments[0])}));
}

void Money(sqlite3_context* context, Arguments arguments) {
    const std::optional<double> money = ToMoney(sqlite3_value_double(arguments[0]));
    if (money) {
        sqlite3_result_double(context, *money);
    } else {
        Raise(context, dialect::NumberOutOfRange("money"));
    }
}

void MoneyTextOf(sqlite3_context* context, Arguments arguments) {
    const bool grouped = sqlite3_value_int(arguments[1]) == 1;
    const double amount = sqlite3_value_double(arguments[0]);
    AnswerText(context, MoneyText(amount, grouped ? Thousands::Grouped : Thousands::Plain));
}

void Like(sqlite3_context* context, Arguments arguments) {
    sqlite3_result_int(context, LikeMatches(TextOf(arguments[0]), TextOf(arguments[1])) ? 1 : 0);
}

// Blanks that do not fit are cut off; anything else that does not fit refuses the row.
void FitText(sqlite3_context* context, Arguments arguments) {
    const std::string_view text = TextOf(arguments[0]);
    const auto length = static_cast<std::size_t>(sqlite3_value_int(arguments[1]));
    const std::string fitting = Utf16Prefix(text, length);
    if (text.find_first_not_of(' ', fitting.size()) != std::string_view::npos) {
        Raise(context, dialect::TextTruncated());
    } else {
        AnswerText(context, fitting);
    }
}

// NULL in, NULL out, for every function; and no exception may pass through the engine.
template <void (*function)(sqlite3_context*, Arguments)>
void Guarded(sqlite3_context* context, int count, Arguments arguments) noexcept {
    for (int index = 0; index < count; ++index) {
        if (sqlite3_value_type(arguments[index]) == SQLITE_NULL) return sqlite3_result_null(context);
    }
    try {
        function(context, arguments);
    } catch (...) {
        sqlite3_result_error_nomem(context);
    }
}

int Collate(void*, int leftLength, const void* left, int rightLength, const void* right) noexcept {
    return CompareText({static_cast<const char*>(left), static_cast<std::size_t>(leftLength)},
                       {static_cast<const char*>(right), static_cast<std::size_t>(rightLength)});
}

struct Function {
    const char* name;
    int arguments;
    int flags;
    void (*run)(sqlite3_context*, int, Arguments);
};

// Only what cannot fail is deterministic: the engine may run such a function although no row needs it.
constexpr int Deterministic = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
constexpr auto Functions =
    std::to_array<Function>({{names::Year, 1, Deterministic, Guarded<Year>},
                             {names::Month, 1, Deterministic, Guarded<Month>},
                             {names::Day, 1, Deterministic, Guarded<Day>},
                             {names::DateText, 1, Deterministic, Guarded<DateText>},
                             {names::Money, 1, SQLITE_UTF8, Guarded<Money>},
                             {names::MoneyText, 2, Deterministic, Guarded<MoneyTextOf>},
                             {names::Like, 2, Deterministic, Guarded<Like>},
                             {names::FitText, 2, SQLITE_UTF8, Guarded<FitText>}});

}  // namespace

void RegisterDialectFunctions(sqlite3* database, PendingError& pendingError) {
    for (const Function& function : Functions) {
        const int result =
            sqlite3_create_function_v2(database, function.name, function.arguments, function.flags,
                                       &pendingError, function.run, nullptr, nullptr, nullptr);
        if (result != SQLITE_OK) throw EngineError(database);
    }
    if (sqlite3_create_collation_v2(database, names::Collation, SQLITE_UTF8, nullptr, Collate, nullptr) !=
        SQLITE_OK) {
        throw EngineError(database);
    }
}

}  // namespace tavrin::host
