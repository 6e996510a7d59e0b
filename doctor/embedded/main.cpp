// The doctor for the stand-in host's database, natively. There is no registration to look at here.

#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>

#include "doctor/core/database_examination.h"
#include "doctor/core/error_words.h"
#include "doctor/core/program.h"
#include "doctor/embedded/embedded_examination.h"
#include "host/embedded/demo_data.h"

namespace tavrin::doctor {
namespace {

constexpr SourceOption Source{
    "--database", "  --database FILE    the stand-in host's database; demo for its demo data\n", true};

/// A file that is not there is not made.
std::shared_ptr<host::EmbeddedDatabase> Open(const std::string& file) {
    if (file == "demo") return host::OpenDemoDatabase(":memory:");
    if (!std::ifstream(file)) throw data::Error(data::error_number::InvalidFile, "no such file");
    return std::make_shared<host::EmbeddedDatabase>(file);
}

Report Examine(const Options& options) try {
    EmbeddedExamination database(Open(options.source.empty() ? "demo" : options.source));
    return ExamineDatabase(database, options.company);
} catch (const data::Error& error) {
    Section section{{"Baza de date", "The database"}, {}};
    section.Fail(Text{"nu se deschide: ", "does not open: "} + WordsOf(error),
                 {"verificați numele fișierului", "look at the file's name"});
    return {section};
}

Origin ThisOrigin() {
    const std::time_t now = std::time(nullptr);
    std::array<char, 32> time{};
    std::strftime(time.data(), time.size(), "%Y-%m-%d %H:%M:%S", std::localtime(&now));
    std::array<char, 256> name{};
    gethostname(name.data(), name.size() - 1);
    return {time.data(), name.data()};
}

Language SystemLanguage() {
    const char* const name = std::getenv("LANG");
    return name != nullptr && std::string_view(name).starts_with("ro") ? Language::Romanian
                                                                       : Language::English;
}

bool Write(const std::string& file, const std::string& content) {
    std::ofstream stream(file, std::ios::binary);
    stream << content << std::flush;
    return stream.good();
}

int Main(int count, char** arguments) {
    const auto print = [](const std::string& text) { std::fputs(text.c_str(), stdout); };
    const auto complain = [](const std::string& text) { std::fputs(text.c_str(), stderr); };
    return RunProgram({arguments + 1, arguments + count},
                      {Source, SystemLanguage(), ThisOrigin(), Examine, print, complain, Write});
}

}  // namespace
}  // namespace tavrin::doctor

int main(int count, char** arguments) {
    return tavrin::doctor::Main(count, arguments);
}
