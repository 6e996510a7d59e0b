// The verification kit's program: what verify.cmd calls in its own folder. It runs the tests as programs of
// their own, so that nothing that they do to themselves keeps a report from being written, or a database from
// being removed.

#include <windows.h>

#include <array>
#include <cstdio>
#include <cwchar>
#include <exception>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "e2e/server_variables.h"
#include "verify/ado_server.h"
#include "verify/kit_files.h"
#include "verify/options.h"
#include "verify/preconditions.h"
#include "verify/report.h"
#include "verify/scratch_database.h"
#include "verify/secrets.h"
#include "verify/system_facts.h"
#include "verify/test_runs.h"
#include "win32/base/text.h"
#include "win32/program/com_scope.h"
#include "win32/program/program_arguments.h"

namespace tavrin::verify {
namespace {

constexpr const char* ServerTests = "ServerTest.*";

/// Taken out of the environment, so that only those who need it have it.
std::string TakeConnectionVariable() {
    std::array<wchar_t, 4096> value{};
    const DWORD length =
        GetEnvironmentVariableW(e2e::ConnectionVariable, value.data(), static_cast<DWORD>(value.size()));
    SetEnvironmentVariableW(e2e::ConnectionVariable, nullptr);
    SetEnvironmentVariableW(e2e::DatabaseVariable, nullptr);
    return length < value.size() ? win32::ToUtf8({value.data(), length}) : std::string();
}

Options ReadOptions() {
    Options options = ParseOptions(win32::Arguments());
    const std::string variable = TakeConnectionVariable();
    if (options.connectionString.empty()) options.connectionString = variable;
    return options;
}

/// No other database has it.
std::string ScratchName() {
    SYSTEMTIME now{};
    GetSystemTime(&now);
    char text[64];
    std::snprintf(text, sizeof text, "TavrinVerify_%04u%02u%02u%02u%02u%02u_%lu", now.wYear, now.wMonth,
                  now.wDay, now.wHour, now.wMinute, now.wSecond, GetCurrentProcessId());
    return text;
}

TestRun RunOnServer(const std::string& connectionString, const std::string& database,
                    const std::wstring& folder) {
    return RunTests("Windows on the server", ServerTests, folder,
                    {{e2e::ConnectionVariable, win32::ToWide(connectionString)},
                     {e2e::DatabaseVariable, win32::ToWide(database)}});
}

/// The scratch database goes again whatever happens after it was begun.
void VerifyOnServer(const std::string& connectionString, const std::wstring& folder, Report& report) {
    AdoServer server(connectionString);
    report.server = server.Facts();
    ScratchDatabase scratch(server.Connection(), ScratchName());
    std::printf("Scratch database: %s\n", scratch.Name().c_str());
    try {
        scratch.Make(ReadKitFile(L"tables.sql"));
        report.runs.push_back(RunOnServer(connectionString, scratch.Name(), folder));
    } catch (const std::exception& error) {
        report.databaseProblems.emplace_back(error.what());
    }
    for (const std::string& problem : scratch.Drop())
        report.databaseProblems.push_back(problem);
}

void TryOnServer(const std::string& connectionString, const std::wstring& folder, Report& report) {
    const win32::ComScope com;
    try {
        VerifyOnServer(connectionString, folder, report);
    } catch (const std::exception& error) {
        report.databaseProblems.emplace_back(error.what());
    }
}

Report Verify(const Options& options, const std::wstring& folder) {
    Report report;
    report.system = ReadSystemFacts();
    report.system.push_back({"Kit", ReadKitFile(L"kit.txt")});
    report.system.push_back({"Selection", options.filter});
    report.warnings = FindDisturbances();
    report.obstacles = FindObstacles();
    if (!report.obstacles.empty()) return report;
    report.runs.push_back(RunTests("End-to-end tests", options.filter, folder));
    if (options.tour) report.runs.push_back(RunTour());
    if (!options.connectionString.empty()) TryOnServer(options.connectionString, folder, report);
    return report;
}

/// The tests end at Ctrl+C, as every program of the console does; this one goes on to remove the database.
BOOL WINAPI GoOn(DWORD event) {
    return event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT ? TRUE : FALSE;
}

int Run() {
    const Options options = ReadOptions();
    if (options.help) {
        std::fputs(UsageText, stdout);
        return static_cast<int>(Verdict::Passed);
    }
    SetConsoleCtrlHandler(GoOn, TRUE);
    const std::wstring folder = EnterKitFolder();
    const Report report = Verify(options, folder);
    const std::string text = Secrets(options.connectionString).Withheld(ReportText(report));
    // The mark says to every editor that the text is UTF-8.
    const bool isWritten = WriteKitFile(L"report.txt", "\xEF\xBB\xBF" + text);
    std::printf(
        "%s\n%s\n", SummaryOf(report).c_str(),
        isWritten ? "The report is report.txt in this folder." : "The report cannot be written; it follows.");
    if (!isWritten) std::fputs(text.c_str(), stdout);
    return static_cast<int>(isWritten ? VerdictOf(report) : Verdict::NotRun);
}

}  // namespace
}  // namespace tavrin::verify

int main() try { return tavrin::verify::Run(); } catch (const std::exception& error) {
    std::printf("%s\n", error.what());
    return static_cast<int>(tavrin::verify::Verdict::NotRun);
}
