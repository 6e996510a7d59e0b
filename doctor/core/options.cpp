#include "doctor/core/options.h"

#include <charconv>
#include <stdexcept>
#include <string_view>

namespace tavrin::doctor {
namespace {

Language ParseLanguage(const std::string& text) {
    if (text == "ro") return Language::Romanian;
    if (text == "en") return Language::English;
    throw std::invalid_argument("--language is ro or en");
}

std::int32_t ParseCompany(const std::string& text) {
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        throw std::invalid_argument("--company needs a number");
    return number;
}

/// An argument as far as it may be repeated: a password may stand behind the sign.
std::string NameAlone(const std::string& argument) {
    if (!argument.starts_with("--")) return "an argument that is no option";
    return "unknown option " + argument.substr(0, argument.find_first_of("= ;"));
}

void Read(Options& options, const std::string& name, const std::string& value, const SourceOption& source) {
    if (name == source.name) {
        options.source = value;
    } else if (name == "--company") {
        options.company = ParseCompany(value);
    } else if (name == "--language") {
        options.language = ParseLanguage(value);
    } else {
        options.reportFile = value;
    }
}

}  // namespace

Options ParseOptions(const std::vector<std::string>& arguments, const SourceOption& source) {
    Options options;
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        if (*argument == "--help" || *argument == "/?") {
            options.help = true;
            continue;
        }
        if (*argument == "--version") {
            options.version = true;
            continue;
        }
        const bool known = *argument == source.name || *argument == "--company" ||
                           *argument == "--language" || *argument == "--report";
        if (!known) throw std::invalid_argument(NameAlone(*argument));
        const auto value = argument + 1;
        if (value == arguments.end() || value->empty() || value->starts_with("--"))
            throw std::invalid_argument(*argument + " needs a value");
        Read(options, *argument, *value, source);
        argument = value;
    }
    if (options.company && options.source.empty() && !source.hasDefault)
        throw std::invalid_argument(std::string("--company needs ") + source.name);
    return options;
}

std::string UsageText(const SourceOption& source) {
    return std::string(
               "Usage: tavrin_doctor [OPTION...]\n\n"
               "Looks at what the utilities need, says what is wrong and what to do about it.\n\n") +
           source.help +
           "  --company N        the company's Id (without it: the lowest in AdmQuadrel.dbo.Societati)\n"
           "  --report FILE      write the report as a page of HTML as well\n"
           "  --language ro|en   Romanian or English (without it: Romanian on a Romanian system)\n"
           "  --version          the version of this program alone\n"
           "  --help, /?         this text\n\n"
           "Everything that is tried in the database is rolled back. Ends with 0 where nothing is wrong, "
           "warnings\n"
           "aside, with 1 where something is, as where nothing is registered, with 2 when it is called "
           "wrongly,\n"
           "with 3 where it cannot write the report.\n";
}

}  // namespace tavrin::doctor
