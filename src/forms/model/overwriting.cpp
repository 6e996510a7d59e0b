#include "forms/model/overwriting.h"

#include <exception>

#include "forms/model/files.h"

namespace tavrin::forms {

namespace {

/// Room is made before anything is overwritten, and given away only once everything is: what a full disk
/// leaves no room for can be taken back.
void WriteOver(OpenFile& file, std::size_t size, std::string_view content) {
    if (content.size() > size) file.SetSize(content.size());
    file.Write(content);
    file.Flush();
    if (content.size() >= size) return;
    file.SetSize(content.size());
    file.Flush();
}

void PutBack(OpenFile& file, std::string_view before) {
    file.Write(before);
    file.SetSize(before.size());
    file.Flush();
}

bool Holds(OpenFile& file, std::string_view content) {
    try {
        return file.ReadAll() == content;
    } catch (const std::exception&) {
        return false;
    }
}

/// What could not be written a second time may never have been touched.
bool CanPutBack(OpenFile& file, std::string_view before) {
    try {
        PutBack(file, before);
        return true;
    } catch (const std::exception&) {
        return Holds(file, before);
    }
}

}  // namespace

void Overwrite(OpenFile& file, std::string_view content) {
    const std::string before = file.ReadAll();
    try {
        WriteOver(file, before.size(), content);
    } catch (const std::exception&) {
        if (!CanPutBack(file, before)) throw DamagedFile(data::CurrentError());
        throw;
    }
}

}  // namespace tavrin::forms
