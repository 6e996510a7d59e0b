// The catalogue of windows, which everything goes by that goes through all of them, against the windows.

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

#include "windows/every_window.h"

namespace tavrin::tests {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::Not;
using Names = std::multiset<std::string>;

std::string ContentOf(const std::filesystem::path& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// How many classes of windows the folder's headers declare.
std::ptrdiff_t CountForms(const std::string& folder) {
    const std::regex form(": public forms::Form\\b");
    std::ptrdiff_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(TAVRIN_SOURCE_FOLDER + ("/" + folder))) {
        if (entry.path().extension() != ".h") continue;
        const std::string header = ContentOf(entry.path());
        count += std::distance(std::sregex_iterator(header.begin(), header.end(), form), {});
    }
    return count;
}

class CatalogueTest : public EveryWindowTest {};

TEST_F(CatalogueTest, EveryStateIsReachedAndItsWindowIsCalledAsItSays) {
    for (const host::WindowEntry& window : host::AllWindows()) {
        EXPECT_THAT(window.states, Not(IsEmpty())) << window.name;
        for (const host::WindowState& state : window.states) {
            const forms::Form* const form = Come(window, state);
            ASSERT_NE(form, nullptr) << state.description;
            EXPECT_EQ(form->Caption(), state.caption) << state.description;
        }
    }
}

TEST_F(CatalogueTest, EveryWindowOfAFolderHasAnEntry) {
    for (const host::Utility& utility : host::AllUtilities())
        EXPECT_EQ(CountForms(utility.folder), std::ssize(utility.windows)) << utility.folder;
}

TEST_F(CatalogueTest, EveryFolderWithAWindowHasAUtility) {
    Names described;
    for (const host::Utility& utility : host::AllUtilities())
        described.insert(utility.folder);
    for (const auto& folder : std::filesystem::directory_iterator(TAVRIN_SOURCE_FOLDER "/src")) {
        const std::string name = "src/" + folder.path().filename().string();
        if (folder.is_directory() && CountForms(name) > 0) {
            EXPECT_EQ(described.count(name), 1U) << name;
        }
    }
}

TEST_F(CatalogueTest, EveryWindowIsSeenOnTheTour) {
    std::set<std::string> seen;
    for (const host::TourStep& step : host::AllTourSteps())
        seen.insert(step.windows.begin(), step.windows.end());
    for (const host::WindowEntry& window : host::AllWindows())
        EXPECT_THAT(seen, Contains(window.name));
}

}  // namespace
}  // namespace tavrin::tests
