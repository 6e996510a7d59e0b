#pragma once

#include <map>
#include <string>

namespace tavrin::e2e {

/// What belongs to the whole process or to the calling thread, and is no component's to change: by name, as
/// text.
using ProcessSettings = std::map<std::string, std::string>;

/// Call on the thread whose settings are meant.
ProcessSettings ReadProcessSettings();

}  // namespace tavrin::e2e
