#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tavrin::forms {

/// A file that is open for reading and writing. Whatever fails throws.
class OpenFile {
  public:
    virtual ~OpenFile() = default;

    virtual std::string ReadAll() = 0;
    /// Bytes that a larger size adds have no defined content.
    virtual void SetSize(std::size_t size) = 0;
    /// Writes from the beginning of the file. If it throws, part of it may have been written.
    virtual void Write(std::string_view content) = 0;
    /// Returns once everything written before is on the disk.
    virtual void Flush() = 0;
};

/// Replaces the content of a file in place. If that fails halfway, restores the old content and rethrows the
/// failure. \throws DamagedFile if the old content could not be restored
void Overwrite(OpenFile& file, std::string_view content);

}  // namespace tavrin::forms
