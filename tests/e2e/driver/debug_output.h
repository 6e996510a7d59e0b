#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

namespace tavrin::e2e {

/// A viewer of debug output, as a programmer has one beside a program. There can be one in a session.
class DebugViewer {
  public:
    /// \throws DriverError where there is another one
    DebugViewer();
    ~DebugViewer();
    DebugViewer(const DebugViewer&) = delete;
    DebugViewer& operator=(const DebugViewer&) = delete;

    /// What the component in this process has written so far. Whoever writes waits until it has been read.
    std::vector<std::string> Lines() const;
    /// The first line that contains the text; empty where none does.
    std::string LineWith(const std::string& text) const;

  private:
    struct Reader;
    std::unique_ptr<Reader> reader_;
};

/// Runs a command line under a debugger, to its end. \return what the component in it has written
/// \throws DriverError when it cannot be run or tells nothing more for half a minute
std::vector<std::string> DebugOutputOf(std::wstring command);

}  // namespace tavrin::e2e
