// Feeds random bytes, behind the start of a note, to the check that stands before the editor. What it lets
// through must be a note that passes it unchanged, and holds nothing that the check is there to keep away:
// that is looked for by a scan of its own.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

#include "data/error.h"
#include "notes/note_filter.h"

namespace {

using tavrin::notes::FilterNote;

[[noreturn]] void Fail(const char* what, std::string_view kept) {
    std::cerr << what << ": " << kept << '\n';
    std::abort();
}

/// Counts braces as an editor does: a backslash takes the next byte's meaning away.
void CheckGroups(std::string_view kept) {
    int depth = 0;
    for (std::size_t i = 0; i < kept.size(); ++i) {
        if (kept[i] == '\\') {
            ++i;
        } else if (kept[i] == '{') {
            if (++depth > tavrin::notes::MaximumNesting) Fail("nested too deep", kept);
        } else if (kept[i] == '}') {
            if (--depth == 0 && i + 1 != kept.size()) Fail("something follows the note", kept);
        }
    }
    if (depth != 0) Fail("a group is open", kept);
}

bool IsLetter(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

/// Whether a control word of that name occurs.
bool HasWord(std::string_view kept, std::string_view name) {
    for (std::size_t i = 0; i + 1 < kept.size(); ++i) {
        if (kept[i] != '\\') continue;
        const std::string_view rest = kept.substr(++i);
        if (rest.starts_with(name) && (rest.size() == name.size() || !IsLetter(rest[name.size()])))
            return true;
    }
    return false;
}

void Check(const std::string& kept) {
    if (FilterNote(kept) != kept) Fail("changed by a second pass", kept);
    if (kept.find('\0') != std::string::npos) Fail("a nul byte", kept);
    for (const char* word : {"object", "objdata", "bin"}) {
        if (HasWord(kept, word)) Fail(word, kept);
    }
    CheckGroups(kept);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    for (const char* start : {"", "{\\rtf1"}) {
        try {
            Check(FilterNote(start + bytes));
        } catch (const tavrin::data::Error&) {
            continue;  // refused
        }
    }
    return 0;
}
