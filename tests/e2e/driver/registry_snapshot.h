#pragma once

#include <map>
#include <string>

namespace tavrin::e2e {

/// Everything under the two roots where classes are registered: the path of each key and value, with its
/// data.
using RegistrySnapshot = std::map<std::string, std::string>;

RegistrySnapshot TakeRegistrySnapshot();

/// The entries that only the first has, or has with other data.
RegistrySnapshot Missing(const RegistrySnapshot& from, const RegistrySnapshot& in);

}  // namespace tavrin::e2e
