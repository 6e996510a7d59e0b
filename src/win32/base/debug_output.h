#pragma once

#include <memory>

#include "data/diagnosis.h"

namespace tavrin::win32 {

/// Writes to the process's debug output, where somebody reads that now: a debugger at the process, or a
/// viewer in the user's session. Null where nobody does, which two questions to the system find out.
std::shared_ptr<data::Diagnosis> FindDebugListener();

}  // namespace tavrin::win32
