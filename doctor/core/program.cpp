#include "doctor/core/program.h"

#include <stdexcept>

#include "doctor/core/product.h"

namespace tavrin::doctor {

int RunProgram(const std::vector<std::string>& arguments, const Surroundings& surroundings) try {
    const Options options = ParseOptions(arguments, surroundings.source);
    if (options.help) {
        surroundings.print(UsageText(surroundings.source));
        return exit_code::AllWell;
    }
    if (options.version) {
        surroundings.print(std::string("tavrin_doctor ") + BuildVersion + "\n");
        return exit_code::AllWell;
    }
    const Language language = options.language.value_or(surroundings.language);
    const Report report = surroundings.examine(options);
    surroundings.print(PlainReport(report, surroundings.origin, language));
    if (!options.reportFile.empty() &&
        !surroundings.write(options.reportFile, HtmlReport(report, surroundings.origin, language))) {
        surroundings.complain("tavrin_doctor: cannot write " + options.reportFile + "\n");
        return exit_code::NoReport;
    }
    return Count(report, Verdict::Error) == 0 ? exit_code::AllWell : exit_code::Errors;
} catch (const std::invalid_argument& error) {
    surroundings.complain(std::string("tavrin_doctor: ") + error.what() + " (see --help)\n");
    return exit_code::WrongUse;
}

}  // namespace tavrin::doctor
