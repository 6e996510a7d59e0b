#include "proofs/shrinking.h"

#include <algorithm>

namespace tavrin::tests {
namespace {

RandomEvents Without(const RandomEvents& events, std::size_t from, std::size_t count) {
    RandomEvents fewer(events.begin(), events.begin() + static_cast<std::ptrdiff_t>(from));
    const std::size_t end = std::min(events.size(), from + count);
    fewer.insert(fewer.end(), events.begin() + static_cast<std::ptrdiff_t>(end), events.end());
    return fewer;
}

}  // namespace

RandomEvents Shrink(RandomEvents events, const std::function<bool(const RandomEvents&)>& fails) {
    for (std::size_t piece = std::max<std::size_t>(1, events.size() / 2);;) {
        bool shrunk = false;
        // From the end: what follows the failure goes first.
        for (std::size_t end = events.size(); end > 0;) {
            const std::size_t from = end > piece ? end - piece : 0;
            RandomEvents fewer = Without(events, from, end - from);
            if (fails(fewer)) {
                events = std::move(fewer);
                shrunk = true;
            }
            end = std::min(from, events.size());
        }
        if (piece > 1) {
            piece /= 2;
        } else if (!shrunk) {
            return events;
        }
    }
}

}  // namespace tavrin::tests
