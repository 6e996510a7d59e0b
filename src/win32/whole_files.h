#pragma once

#include <string>

#include "forms/files.h"

namespace tavrin::win32 {

/// The platform's files. A file is written under a name of its own in the same folder, to the disk, and takes
/// its place only then: whatever fails before, the old file is untouched.
class WholeFiles final : public forms::Files {
  public:
    std::string Read(const std::string& name, std::size_t maximumSize) override;
    void Replace(const std::string& name, std::string_view content) override;
};

}  // namespace tavrin::win32
