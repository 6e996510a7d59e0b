// Usage: tavrin_e2e [--dll PATH] [--screenshots FOLDER] [--leave HOW] [GoogleTest's options]
//
// Tests Tavrin.dll from the outside. The DLL is taken from --dll, else from the environment's TAVRIN_DLL,
// else from the root of the build folder that this program lies in. The screen is saved as FOLDER/TEST.png
// where a test first fails, and the path is printed.
// With --leave HOW it is a host that leaves at a bad moment instead, for the test of those.
// With TAVRIN_CONNECTION and TAVRIN_DATABASE in the environment the tests of the windows on that server are
// there too. Under Wine all tests together are too many for one process: ./test deals them with
// GTEST_TOTAL_SHARDS.

#include <windows.h>

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstdio>
#include <cstring>
#include <string>
#include <utility>

#include "e2e/driver/component.h"
#include "e2e/driver/program_path.h"
#include "e2e/driver/screen.h"
#include "e2e/leaving_host.h"
#include "e2e/server_variables.h"
#include "win32/base/text.h"

namespace {

using tavrin::e2e::BesideThisProgram;
using tavrin::e2e::FullPath;
using tavrin::win32::ToWide;

class ScreenshotOfFailure : public testing::EmptyTestEventListener {
  public:
    void OnTestStart(const testing::TestInfo& /*test*/) override { isTaken_ = false; }

    void OnTestPartResult(const testing::TestPartResult& result) override {
        const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
        if (!result.failed() || test == nullptr || isTaken_.exchange(true)) return;
        const std::string name = std::string(test->test_suite_name()) + "." + test->name();
        std::printf("Its picture: %s\n", tavrin::e2e::SaveScreenshot(name).c_str());
    }

  private:
    std::atomic<bool> isTaken_ = false;  ///< later failures follow from the first
};

/// Without a server there is nothing to test on it.
void LeaveOutServerTests() {
    const std::string filter = testing::GTEST_FLAG(filter);
    testing::GTEST_FLAG(filter) =
        filter + (filter.find('-') == std::string::npos ? "-" : ":") + "ServerTest.*";
}

/// The word after the option, null where it is not given.
const char* Option(int count, char** arguments, const char* name) {
    for (int i = 1; i + 1 < count; ++i) {
        if (std::strcmp(arguments[i], name) == 0) return arguments[i + 1];
    }
    return nullptr;
}

std::wstring PathOr(const char* option, std::wstring otherwise) {
    return option != nullptr ? FullPath(ToWide(option)) : std::move(otherwise);
}

}  // namespace

std::wstring tavrin::e2e::Variable(const wchar_t* name) {
    std::array<wchar_t, 4096> value{};
    const DWORD length = GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size()));
    return length < value.size() ? std::wstring(value.data(), length) : std::wstring();
}

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    const std::wstring fromEnvironment = tavrin::e2e::Variable(L"TAVRIN_DLL");
    if (tavrin::e2e::Variable(tavrin::e2e::DatabaseVariable).empty()) LeaveOutServerTests();
    tavrin::e2e::Component::SetPath(PathOr(
        Option(count, arguments, "--dll"),
        fromEnvironment.empty() ? BesideThisProgram(L"..\\..\\Tavrin.dll") : FullPath(fromEnvironment)));
    if (const char* how = Option(count, arguments, "--leave")) return tavrin::e2e::LeaveBadly(how);
    tavrin::e2e::SetScreenshotFolder(
        PathOr(Option(count, arguments, "--screenshots"), BesideThisProgram(L"screenshots")));
    testing::UnitTest::GetInstance()->listeners().Append(new ScreenshotOfFailure);  // owned by GoogleTest
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    return RUN_ALL_TESTS();
}
