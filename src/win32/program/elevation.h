#pragma once

namespace tavrin::win32 {

/// Whether the program runs as administrator. COM then looks at the machine's registrations alone.
bool IsElevated();

}  // namespace tavrin::win32
