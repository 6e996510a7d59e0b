// The doctor for a customer's machine.

#include <windows.h>

#include "doctor/core/connection_secrets.h"
#include "doctor/core/database_examination.h"
#include "doctor/core/error_words.h"
#include "doctor/core/program.h"
#include "doctor/windows/ado_examination.h"
#include "doctor/windows/this_machine.h"
#include "win32/base/text.h"
#include "win32/program/com_scope.h"
#include "win32/program/program_arguments.h"

namespace tavrin::doctor {
namespace {

constexpr SourceOption Source{
    "--connection",
    "  --connection TEXT  open this database through ADO and try what the windows need of it; the\n"
    "                     report repeats none of its secrets\n"};

void Append(Report& report, Report more) {
    for (Section& section : more)
        report.push_back(std::move(section));
}

Text WithoutSecrets(const Options& options, const Text& text) {
    return {WithoutSecretsOf(options.source, text.romanian), WithoutSecretsOf(options.source, text.english)};
}

/// The connection, and everything behind it where it opens.
Report ExamineConnection(const Options& options) {
    Section section{{"Conexiunea", "The connection"}, {}};
    section.Good(Same(ShownConnection(options.source)));
    Report behind;
    try {
        AdoExamination database(options.source);
        section.Good(WithoutSecrets(options, Same(database.Description())));
        behind = ExamineDatabase(database, options.company);
    } catch (const data::Error& error) {
        section.Fail(Text{"nu se deschide: ", "does not open: "} + WithoutSecrets(options, WordsOf(error)),
                     {"verificați serverul, baza de date, contul și furnizorul din șirul de conectare",
                      "look at server, database, login and provider in the connection string"});
    }
    Report report{section};
    Append(report, std::move(behind));
    return report;
}

Report Examine(const Options& options) {
    const win32::ComScope com;
    Report report = ExamineMachine(ThisMachine());
    if (!options.source.empty()) Append(report, ExamineConnection(options));
    return report;
}

/// A console takes UTF-16; a file or a pipe gets UTF-8.
void Print(DWORD where, const std::string& text) {
    const HANDLE output = GetStdHandle(where);
    DWORD mode = 0;
    DWORD written = 0;
    if (GetConsoleMode(output, &mode) != FALSE) {
        const std::wstring wide = win32::ToWide(text);
        WriteConsoleW(output, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr);
    } else {
        WriteFile(output, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    }
}

bool Write(const std::string& file, const std::string& content) {
    const HANDLE opened = CreateFileW(win32::ToWide(file).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    const bool done =
        WriteFile(opened, content.data(), static_cast<DWORD>(content.size()), &written, nullptr) != FALSE;
    CloseHandle(opened);
    return done && written == content.size();
}

Language SystemLanguage() {
    return PRIMARYLANGID(GetUserDefaultUILanguage()) == LANG_ROMANIAN ? Language::Romanian
                                                                      : Language::English;
}

}  // namespace
}  // namespace tavrin::doctor

int main() {
    using namespace tavrin::doctor;
    return RunProgram(tavrin::win32::Arguments(),
                      {Source, SystemLanguage(), ThisOrigin(), Examine,
                       [](const std::string& text) { Print(STD_OUTPUT_HANDLE, text); },
                       [](const std::string& text) { Print(STD_ERROR_HANDLE, text); }, Write});
}
