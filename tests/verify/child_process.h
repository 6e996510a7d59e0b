#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tavrin::verify {

/// Variables that a child gets besides those of this process.
using Variables = std::vector<std::pair<std::wstring, std::wstring>>;

struct ChildEnd {
    unsigned long exitCode = 0;
    bool wasEnded = false;  ///< it said nothing for so long that it was ended
};

/// Runs a command line in the current folder and gives each line of its output to the function, as it comes.
/// A child that is silent for three minutes is ended. \throws std::runtime_error when it cannot be started
ChildEnd RunChild(const std::wstring& command, const Variables& variables,
                  const std::function<void(std::string_view line)>& hear);

}  // namespace tavrin::verify
