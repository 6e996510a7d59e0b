#pragma once

#include <cstddef>
#include <string>

namespace tavrin::bench {

/// A note file of that many bytes: paragraphs, one in four with words in several formats, and letters that
/// plain ASCII lacks. Where every paragraph has them, Wine takes most of a minute to lay them out, whoever
/// loads them.
inline std::string SampleNote(std::size_t size) {
    std::string rtf =
        "{\\rtf1\\ansi\\ansicpg1250\\uc1\\deff0{\\fonttbl{\\f0\\fnil\\fcharset238 Arial;}"
        "{\\f1\\fnil\\fcharset238 Times New Roman;}}{\\colortbl;\\red200\\green0\\blue0;}\\pard\\f0\\fs20 ";
    for (int line = 0; rtf.size() < size; ++line) {
        rtf += "Nota " + std::to_string(line);
        rtf += line % 4 == 0 ? ": plain text, {\\b bold text}, {\\i\\cf1 red text in italics}, \\u537?i "
                               "{\\f1\\fs28 larger \\ul text} to the end of the paragraph.\\par\r\n"
                             : ": plain text, \\u537?i nothing but plain text that goes on for more than a "
                               "line, to the end of the paragraph.\\par\r\n";
    }
    return rtf + "}";
}

}  // namespace tavrin::bench
