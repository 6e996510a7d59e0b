// Hosts that leave at a bad moment: each is a process of its own, which has to reach its end without a crash.

#include <windows.h>

#include <gmock/gmock.h>

#include "e2e/driver/component.h"
#include "e2e/driver/process.h"
#include "win32/base/module_path.h"
#include "win32/base/text.h"

namespace tavrin::e2e {
namespace {

class LeavingTest : public testing::TestWithParam<const char*> {};

TEST_P(LeavingTest, TheProcessEndsWithoutACrash) {
    const ProcessResult result = RunProcess(L"\"" + win32::ModulePath(nullptr) + L"\" --dll \"" +
                                            Component::Path() + L"\" --leave " + win32::ToWide(GetParam()));
    EXPECT_EQ(result.exitCode, 0U) << result.output;
    EXPECT_THAT(result.output, testing::IsEmpty());
}
INSTANTIATE_TEST_SUITE_P(, LeavingTest, testing::Values("return", "exit", "release", "quit", "uninitialize"),
                         [](const auto& how) { return std::string(how.param); });

}  // namespace
}  // namespace tavrin::e2e
