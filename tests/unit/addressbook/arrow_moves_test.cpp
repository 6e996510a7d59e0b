#include "addressbook/arrow_moves.h"

#include <gtest/gtest.h>

#include <map>

#include "forms/model/keys.h"

namespace tavrin::addressbook {
namespace {

constexpr int AcceptButton = 100;

/// Every box from which a key moves the focus, with where it goes.
std::map<int, int> MovesOf(int keyCode) {
    std::map<int, int> moves;
    for (int box = 0; box < 18; ++box) {
        const auto target = ArrowMove(box, keyCode);
        if (!target) continue;
        moves[box] = target->kind == ArrowTarget::Kind::AcceptButton ? AcceptButton : target->box;
    }
    return moves;
}

TEST(ArrowMoves, DownWalksWithinTheGroupsAndLeavesThemForTheAcceptButton) {
    const std::map<int, int> expected = {{2, 3},
                                         {5, 6},
                                         {6, 7},
                                         {7, 8},
                                         {12, 13},
                                         {13, 14},
                                         {14, 15},
                                         {15, 16},
                                         {16, AcceptButton},
                                         {17, AcceptButton}};
    EXPECT_EQ(MovesOf(forms::key::Down), expected);
}

TEST(ArrowMoves, UpWalksBackAndFromTheFamilyNameGoesToTheGivenName) {
    const std::map<int, int> expected = {{2, 3},   {4, 3},   {6, 5},   {7, 6},   {8, 7},  {9, 8},
                                         {13, 12}, {14, 13}, {15, 14}, {16, 15}, {17, 16}};
    EXPECT_EQ(MovesOf(forms::key::Up), expected);
}

TEST(ArrowMoves, OtherKeysMoveNothing) {
    for (const int keyCode : {forms::key::Left, forms::key::Right, forms::key::Enter, forms::key::PageDown})
        EXPECT_TRUE(MovesOf(keyCode).empty()) << keyCode;
}

}  // namespace
}  // namespace tavrin::addressbook
