#include "host/windows/catalogue.h"

#include <utility>

namespace tavrin::host {
namespace {

template <class Part>
std::vector<Part> Collect(std::vector<Part> Utility::*part) {
    std::vector<Part> all;
    for (const Utility& utility : AllUtilities())
        all.insert(all.end(), (utility.*part).begin(), (utility.*part).end());
    return all;
}

}  // namespace

const std::vector<Utility>& AllUtilities() {
    static const std::vector<Utility> all{DescribePalette(), DescribeCalculator(), DescribeRates(),
                                          DescribeAddressBook(), DescribeNotes()};
    return all;
}

std::vector<WindowEntry> AllWindows() {
    return Collect(&Utility::windows);
}

std::vector<TourStep> AllTourSteps() {
    return Collect(&Utility::tour);
}

std::string Key(int code) {
    return {static_cast<char>(code)};
}

TourAction Press(std::string keys) {
    return {nullptr, nullptr, std::move(keys)};
}

}  // namespace tavrin::host
