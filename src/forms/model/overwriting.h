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
    /// What a file gains by it is anything.
    virtual void SetSize(std::size_t size) = 0;
    /// From the file's beginning. Where it throws, some of it may have been written.
    virtual void Write(std::string_view content) = 0;
    /// Until it returns, nothing of the above needs to be on the disk.
    virtual void Flush() = 0;
};

/// Writes a file anew that stays the one it is. Where that fails half-way the file gets its old content back,
/// and the failure is thrown. \throws DamagedFile where it could not be given back
void Overwrite(OpenFile& file, std::string_view content);

}  // namespace tavrin::forms
