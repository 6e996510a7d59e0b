#include "notes/rtf_reader.h"

#include <algorithm>
#include <optional>

#include "notes/rtf_document_reader.h"

namespace tavrin::notes {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view Blanks = " \t\r\n\0"sv;

std::string_view WithoutBlanksInFront(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(Blanks), text.size()));
    return text;
}

/// What stands inside a file's outermost group; none where it is no RTF.
std::optional<std::string_view> FindDocument(std::string_view file) {
    if (file.starts_with(Utf8Mark)) file.remove_prefix(Utf8Mark.size());
    const std::string_view document = WithoutBlanksInFront(file);
    if (!document.starts_with('{')) return std::nullopt;
    const std::string_view inside = WithoutBlanksInFront(document.substr(1));
    if (!inside.starts_with("\\rtf") && !inside.starts_with("\\urtf")) return std::nullopt;
    return inside;
}

}  // namespace

RtfReading ReadRtf(std::string_view file, RtfIndents indents, LongParagraphs longParagraphs) {
    const auto document = FindDocument(file);
    if (!document) return {};
    return RtfDocumentReader(*document, indents, longParagraphs, file.starts_with(Utf8Mark)).Run();
}

}  // namespace tavrin::notes
