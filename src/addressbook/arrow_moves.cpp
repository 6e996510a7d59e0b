#include "addressbook/arrow_moves.h"

#include <algorithm>
#include <array>
#include <span>

#include "forms/model/keys.h"

namespace tavrin::addressbook {

namespace {

struct Move {
    int from;
    int to;
};
constexpr int ToAccept = -1;

// The arrows walk within a group of boxes that belong together; the ends of a group are left with Tab or
// Enter. From the family name both arrows lead to the given name.
constexpr std::array<Move, 10> Downward = {
    {{2, 3}, {5, 6}, {6, 7}, {7, 8}, {12, 13}, {13, 14}, {14, 15}, {15, 16}, {16, ToAccept}, {17, ToAccept}}};
constexpr std::array<Move, 11> Upward = {
    {{2, 3}, {4, 3}, {6, 5}, {7, 6}, {8, 7}, {9, 8}, {13, 12}, {14, 13}, {15, 14}, {16, 15}, {17, 16}}};

std::span<const Move> MovesOf(int keyCode) {
    if (keyCode == forms::key::Down) return Downward;
    if (keyCode == forms::key::Up) return Upward;
    return {};
}

}  // namespace

std::optional<ArrowTarget> ArrowMove(int box, int keyCode) {
    const std::span<const Move> moves = MovesOf(keyCode);
    const auto move = std::ranges::find(moves, box, &Move::from);
    if (move == moves.end()) return std::nullopt;
    if (move->to == ToAccept) return ArrowTarget{ArrowTarget::Kind::AcceptButton, 0};
    return ArrowTarget{ArrowTarget::Kind::Box, move->to};
}

}  // namespace tavrin::addressbook
