#include "addressbook/edit_rules.h"

#include <gtest/gtest.h>

namespace tavrin::addressbook {
namespace {

TEST(EditRules, NothingIsTypedUnlessAPersonIsEdited) {
    for (const EditMode mode : {EditMode::Browse, EditMode::Add, EditMode::Modify})
        EXPECT_EQ(OpenBoxesOf({mode, false}), OpenBoxes{});
}

TEST(EditRules, NamesAreGivenOnce) {
    EXPECT_EQ(OpenBoxesOf({EditMode::Add, true}), (OpenBoxes{.names = true, .details = true}));
    EXPECT_EQ(OpenBoxesOf({EditMode::Modify, true}), (OpenBoxes{.names = false, .details = true}));
}

TEST(EditRules, BothNamesAreRequiredTheFamilysFirst) {
    EXPECT_EQ(MissingColumn({"Popa", "Ion"}), std::nullopt);
    EXPECT_EQ(MissingColumn({"", ""}), NumeColumn);
    EXPECT_EQ(MissingColumn({"  ", "Ion"}), NumeColumn);
    EXPECT_EQ(MissingColumn({"Popa", " "}), PrenumeColumn);
}

TEST(EditRules, OnlyAnEditThatIsInSightIsCanceled) {
    for (const EditMode mode : {EditMode::Add, EditMode::Modify}) {
        EXPECT_TRUE(CancelsEdit({mode, true}));
        EXPECT_FALSE(CancelsEdit({mode, false})) << "one that failed midway";
    }
    EXPECT_FALSE(CancelsEdit({EditMode::Browse, true}));
    EXPECT_FALSE(CancelsEdit({EditMode::Browse, false}));
}

}  // namespace
}  // namespace tavrin::addressbook
