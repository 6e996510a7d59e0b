#pragma once

#include <string>

namespace tavrin::e2e {

/// A host in a process of its own that opens every window and then leaves as no host should. `how` is one of:
/// `return` (main returns), `exit` (the user-interface thread ends the process), `quit` (its loop ends with
/// the windows open, and so does its apartment), `uninitialize` (its apartment ends; the windows stay in use
/// and are closed later), `release` (it lets go of everything it holds, but the windows). \return the
/// process's exit code: 0 where it got to its end
int LeaveBadly(const std::string& how);

}  // namespace tavrin::e2e
