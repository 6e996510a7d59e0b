#include "verify/options.h"

#include <stdexcept>

namespace tavrin::verify {

const char* const UsageText =
    "Usage: .\\verify.cmd [--quick | --filter PATTERN] [CONNECTION STRING]\n"
    "\n"
    "Runs the end-to-end tests of the Tavrin.dll in this folder on this desktop and writes report.txt here,\n"
    "with pictures of what failed in pictures. Leave mouse and keyboard alone meanwhile.\n"
    "\n"
    "  --quick            a small selection, to see that it works here\n"
    "  --filter PATTERN   only tests with such names, as GoogleTest takes them\n"
    "  CONNECTION STRING  of ADO, in quotes: makes a scratch database on that server, uses the windows on it "
    "and\n"
    "                     removes it again. It may be given as the variable TAVRIN_CONNECTION instead.\n"
    "  --help             this text\n"
    "\n"
    "Ends with 0 when something ran and all of it passed, 1 when a test failed, 2 when nothing could be "
    "run,\n"
    "3 when the scratch database could not be made or removed.\n";

const char* const QuickFilter =
    "DriverTest.*:*PaletteTest.*/Plain:RegistrationTest.*:ScriptTest.*:VersionResourceTest.*";

Options ParseOptions(const std::vector<std::string>& arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--help") {
            options.help = true;
        } else if (argument == "--quick") {
            options.filter = QuickFilter;
            options.tour = false;
        } else if (argument == "--filter" && i + 1 < arguments.size()) {
            options.filter = arguments[++i];
            options.tour = false;
        } else if (!argument.starts_with('-') && argument.find('=') != std::string::npos) {
            options.connectionString = argument;
        } else if (argument.starts_with('-')) {
            throw std::invalid_argument("unknown option " + argument + " (see --help)");
        } else {
            throw std::invalid_argument(
                "a word that is neither an option nor a connection string (see --help)");
        }
    }
    return options;
}

}  // namespace tavrin::verify
