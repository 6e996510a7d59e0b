#include "host/program/options.h"

#include <array>
#include <charconv>
#include <functional>
#include <limits>
#include <stdexcept>
#include <string_view>

#include "data/text/date.h"
#include "host/embedded/demo_rates.h"

namespace tavrin::host {

const char* const UsageText =
    "Usage: tavrin_host [OPTION...]\n"
    "\n"
    "A stand-in for an accounting program: hands its database to Tavrin.dll and opens the utilities.\n"
    "\n"
    "  --database PATH    the embedded database (tavrin.db); a new one is filled with demo data\n"
    "  --code-page PAGE   what its texts pass through: 1250, 1252, or utf8 to keep every letter (1250)\n"
    "  --line WHICH       how far away it is: lan (0.2 ms, 1 Gbit/s) or branch (20 ms, 20 Mbit/s)\n"
    "  --ado STRING       use the system's ADO with this connection string instead\n"
    "  --company N        the current company's Id (1)\n"
    "  --date YYYY-MM-DD  the working date (2003-11-28)\n"
    "  --year N           the current financial year (the working date's)\n"
    "  --dll PATH         load this DLL without registering it; else the one beside the program is "
    "registered\n"
    "  --tour FOLDER      walk through the windows, save a picture of each as PNG, and end\n"
    "  --follow-resolution  tell Windows that the program follows the screen's resolution itself\n"
    "  --help             this text\n";

namespace {

template <class Number>
Number ParseNumber(const std::string& text) {
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        throw std::invalid_argument("not a number: " + text);
    return number;
}

data::OleDate ParseDate(const std::string& text) {
    const auto date = data::ParseYearMonthDay(text);
    if (!date) throw std::invalid_argument("not a date of the form yyyy-mm-dd: " + text);
    return *date;
}

CodePage ParseCodePage(const std::string& text) {
    if (text == "1250") return CodePage::CentralEuropean;
    if (text == "1252") return CodePage::Western;
    if (text == "utf8") return CodePage::Utf8;
    throw std::invalid_argument("not a known code page: " + text);
}

LineSpeed ParseLine(const std::string& text) {
    if (text == "lan") return LocalNetwork;
    if (text == "branch") return BranchOffice;
    throw std::invalid_argument("not a known line: " + text);
}

struct OptionRow {
    std::string_view name;
    void (*read)(Options& options, const std::string& value);
};

constexpr std::array Rows{
    OptionRow{"--database", [](Options& options, const std::string& value) { options.database = value; }},
    OptionRow{"--code-page",
              [](Options& options, const std::string& value) { options.codePage = ParseCodePage(value); }},
    OptionRow{"--line", [](Options& options, const std::string& value) { options.line = ParseLine(value); }},
    OptionRow{"--ado", [](Options& options, const std::string& value) { options.adoConnection = value; }},
    OptionRow{"--company",
              [](Options& options, const std::string& value) {
                  options.company = ParseNumber<std::int32_t>(value);
              }},
    OptionRow{"--date", [](Options& options, const std::string& value) { options.date = ParseDate(value); }},
    OptionRow{"--year", [](Options& options,
                           const std::string& value) { options.year = ParseNumber<std::int16_t>(value); }},
    OptionRow{"--dll", [](Options& options, const std::string& value) { options.dll = value; }},
    OptionRow{"--tour", [](Options& options, const std::string& value) { options.tourFolder = value; }},
};

const OptionRow& FindRow(const std::string& name) {
    for (const OptionRow& row : Rows)
        if (row.name == name) return row;
    throw std::invalid_argument("unknown option " + name);
}

}  // namespace

Options ParseOptions(const std::vector<std::string>& arguments) {
    Options options;
    options.date = data::ToOleDate(DemoDay);
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == "--help") {
            options.help = true;
            continue;
        }
        if (arguments[i] == "--follow-resolution") {
            options.followsResolution = true;
            continue;
        }
        const OptionRow& row = FindRow(arguments[i]);
        if (++i == arguments.size()) throw std::invalid_argument(std::string(row.name) + " needs a value");
        row.read(options, arguments[i]);
    }
    if (options.year == 0) options.year = static_cast<std::int16_t>(data::ToCalendarDay(options.date).year);
    return options;
}

}  // namespace tavrin::host
