#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace tavrin::bench {

inline double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

}  // namespace tavrin::bench
