#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/diagnosis.h"

namespace tavrin::tests {

/// Somebody who reads what the component tells of itself.
class RecordingListener : public data::Diagnosis {
  public:
    void Tell(std::string_view line) noexcept override { lines.emplace_back(line); }

    /// The lines with "N ms" for whatever a statement took.
    std::vector<std::string> LinesWithoutTimes() const {
        std::vector<std::string> timeless = lines;
        for (std::string& line : timeless) {
            const std::size_t end = line.find(" ms");
            if (end == std::string::npos) continue;
            const std::size_t begin = line.find_last_not_of("0123456789", end - 1) + 1;
            if (begin < end) line.replace(begin, end - begin, "N");
        }
        return timeless;
    }

    std::vector<std::string> lines;
};

}  // namespace tavrin::tests
