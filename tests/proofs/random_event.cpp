#include "proofs/random_event.h"

#include <array>
#include <numeric>
#include <random>

namespace tavrin::tests {
namespace {

constexpr auto KindCount = static_cast<std::size_t>(EventKind::Count);

struct KindEntry {
    const char* name;
    unsigned weight;
};
constexpr std::array<KindEntry, KindCount> Kinds = {{
    {"key", 220},   {"character", 160}, {"click", 240},        {"mouse", 60},    {"double click", 20},
    {"choose", 40}, {"paste", 15},      {"accelerator", 15},   {"activate", 60}, {"close", 6},
    {"apel", 20},   {"fault", 30},      {"end of faults", 12}, {"answer", 40},   {"dialog", 20},
    {"nest", 40},   {"paint", 10},      {"database", 5},       {"operation", 5},
}};

constexpr unsigned TotalWeight() {
    unsigned sum = 0;
    for (const KindEntry& kind : Kinds)
        sum += kind.weight;
    return sum;
}

EventKind KindOf(unsigned number) {
    std::size_t kind = 0;
    while (number >= Kinds[kind].weight)
        number -= Kinds[kind++].weight;
    return static_cast<EventKind>(kind);
}

}  // namespace

RandomEvents MakeEvents(std::uint64_t seed, std::size_t count) {
    std::mt19937_64 generator(seed);
    RandomEvents events(count);
    for (RandomEvent& event : events) {
        // Taken apart by hand: the library's distributions differ from one library to the next.
        const std::uint64_t bits = generator();
        event.kind = KindOf(static_cast<unsigned>(bits >> 32) % TotalWeight());
        event.choice = static_cast<std::uint8_t>(bits >> 16);
        event.detail = static_cast<std::uint16_t>(bits);
    }
    return events;
}

std::string Describe(const RandomEvent& event) {
    return std::string(Kinds[static_cast<std::size_t>(event.kind)].name) + " " +
           std::to_string(event.choice) + " " + std::to_string(event.detail);
}

}  // namespace tavrin::tests
