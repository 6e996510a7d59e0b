#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavrin::verify {

/// The batches of a script as a server's tools send them: they end at a line with nothing but GO, in any
/// case, unless it stands inside a comment or a quoted text. `GO 3` sends the batch before it three times.
/// Batches without a statement are left out.
std::vector<std::string> SplitBatches(std::string_view script);

/// A script with a name in the place of another, wherever that stands as a whole word.
std::string WithName(std::string_view script, std::string_view placeholder, std::string_view name);

}  // namespace tavrin::verify
