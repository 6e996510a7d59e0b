#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "data/error.h"

namespace tavrin::forms {

/// A file was being written anew where it stood, and has neither its new content nor its old one.
class DamagedFile : public data::Error {
  public:
    explicit DamagedFile(const data::Error& cause) : Error(cause) {}
};

/// Files as windows need them: read and written as a whole. Names are UTF-8.
class Files {
  public:
    virtual ~Files() = default;

    /// \throws data::Error where the file cannot be read, or is longer than `maximumSize` bytes: then nothing
    /// of it is read
    virtual std::string Read(const std::string& name, std::size_t maximumSize) = 0;

    /// Writes the file anew. \throws data::Error where that fails: a file that was there is as it was then,
    /// but for a DamagedFile
    virtual void Replace(const std::string& name, std::string_view content) = 0;
};

}  // namespace tavrin::forms
