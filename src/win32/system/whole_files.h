#pragma once

#include <string>

#include "forms/model/files.h"

namespace tavrin::win32 {

/// The platform's files. A file is written under a name of its own in the same folder, to the disk, and takes
/// the old one's place only then, with its attributes and rights: whatever fails before, the old file is
/// untouched. Where another program holds the old one, or the folder takes no new file, the old one is
/// written in its place as a second attempt; where that fails it gets its old content back, if it can.
class WholeFiles final : public forms::Files {
  public:
    std::string Read(const std::string& name, std::size_t maximumSize) override;
    void Replace(const std::string& name, std::string_view content) override;
};

}  // namespace tavrin::win32
