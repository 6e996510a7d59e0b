#pragma once

#include <functional>
#include <map>
#include <string>

#include "data/error.h"
#include "forms/model/files.h"

namespace tavrin::tests {

/// Files that exist only here. Reading one that is not there, or one that is too long, fails as on a disk;
/// writing fails while the test says so, and leaves the old content.
class MemoryFiles : public forms::Files {
  public:
    std::string Read(const std::string& name, std::size_t maximumSize) override {
        if (whenUsed) whenUsed();
        const auto file = contents.find(name);
        if (file == contents.end()) throw data::Error(-2147024894, "The file is not there");
        if (file->second.size() > maximumSize) throw data::Error(-2147024673, "The file is too large");
        return file->second;
    }

    void Replace(const std::string& name, std::string_view content) override {
        if (whenUsed) whenUsed();
        if (failsToWrite || name.empty()) throw data::Error(-2147024784, "The disk is full");
        if (damages) {
            contents[name] = content.substr(0, content.size() / 2);
            throw forms::DamagedFile(data::Error(-2147024784, "The disk is full"));
        }
        contents[name] = content;
    }

    std::map<std::string, std::string> contents;
    bool failsToWrite = false;
    bool damages = false;            ///< fails to write half-way, and to put back what was there
    std::function<void()> whenUsed;  ///< before every reading and writing; may throw
};

}  // namespace tavrin::tests
