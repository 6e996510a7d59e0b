#pragma once

namespace tavrin::com {

/// Gives back what the C++ runtime inside this DLL keeps for each thread. To be called as the last thing when
/// the DLL leaves a process that goes on; a runtime that keeps nothing has nothing to give back.
void FreeRuntimeThreads() noexcept;

}  // namespace tavrin::com
