#pragma once

#include <string>
#include <vector>

namespace tavrin::verify {

/// Why the tests may not, or cannot, be run here; best nothing.
std::vector<std::string> FindObstacles();

/// What may make tests fail that would pass elsewhere.
std::vector<std::string> FindDisturbances();

}  // namespace tavrin::verify
