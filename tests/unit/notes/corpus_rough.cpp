// What no program should write, and some do.

#include "unit/notes/corpus.h"

namespace tavrin::tests {

using namespace std::string_view_literals;

std::vector<NoteSample> RoughSamples() {
    return {
        {"a blank line in front", "\r\n\r\n{\\rtf1 text}", "text"},
        {"a mark and blanks in front", "\xEF\xBB\xBF \t{\\rtf1 text}", "text"},
        {"a blank before the first word", "{ \r\n\\rtf1 text}", "text"},
        {"a picture's sign in a font's name", R"({\rtf1{\fonttbl{\f0 A\u65532?B\u8232?;}}\f0 x})", "{AB|x}"},
        {"ends of lines by their numbers", R"({\rtf1 unu\'0d\'0adoi\'0atrei\'0dpatru})",
         "unu\ndoi\ntrei\npatru"},
        {"NUL inside the text", "{\\rtf1 te\0xt}"sv, "text"},
        {"NUL behind a backslash", "{\\rtf1 te\\\0xt}"sv, "text"},
        {"something behind the end", "{\\rtf1 text}\r\n\0}}}{\\b x"sv, "text"},
        {"no version", R"({\rtf text})", "text"},
        {"leading zeros", R"({\rtf1\fs0000000000000040 a\u0000000537?})", "{fs40|a\u0219}"},
        {"numbers beyond 32 bits", R"({\rtf1\li99999999999999999999\fi-99999999999999999999 a})",
         "<left31680 first-31680>a"},
        {"a dash that is no number", R"({\rtf1\b- a})", "{b|- a}"},
        {"a word of a hundred letters",
         R"({\rtf1\aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa1 text})",
         "text"},
        {"raw bytes between", "{\\rtf1 a\\bin5 {}\\}\0b}"sv, "ab"},
        {"raw bytes of no length", R"({\rtf1 a\bin0 b\bin-7 c\bin d})", "abcd"},
        {"raw bytes of a picture",
         "{\\rtf1{\\pict\\jpegblip\\bin17 \xFF\xD8\xFF\xC0\0\x0B\x08\0\x01\0\x01\x01\x01}{\xFF\xD9}}"sv,
         "(jpeg 15x15)"},
        {"digits that are none", R"({\rtf1 a\'zzb\'5})", "azzb5"},
        {"control characters", "{\\rtf1 a\x01\x0C\x7F\\'00\\'07\\u133?b}"sv, "ab"},
        {"characters that are none", R"({\rtf1 a\u-2?b\u65532?c})", "abc"},
        {"a name that ends a symbol", R"({\rtf1\*\b a})", "a"},
        {"two stars", R"({\rtf1 a{\*\*\b x}b})", "ab"},
        {"a star alone", R"({\rtf1 a{\* x}b})", "a xb"},
        {"the table of fonts twice", R"({\rtf1{\fonttbl{\f0 Verdana;}}\f0 a{\fonttbl{\f1 Tahoma;}}\f1 b})",
         "{Verdana|a}{Tahoma|b}"},
        {"a font of the same number twice", R"({\rtf1{\fonttbl{\f0 Verdana;}{\f0 Tahoma;}}\f0 a})",
         "{Tahoma|a}"},
        {"a style's name without end",
         R"({\rtf1{\stylesheet{\s1 aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa}}text})",
         "text"},
        {"a font's name of many bytes", R"({\rtf1{\fonttbl{\f0 {\u537?}\u537?;}}\f0 a})", "{\u0219\u0219|a}"},
        {"cells without a row", R"({\rtf1\intbl a\cell b\cell\pard\par c})", "a\\tb\nc"},
        {"a row without cells", R"({\rtf1 a\par\trowd\row b})", "a\n\nb"},
        {"a destination in the outermost group", R"({\rtf1 a\header b\pict c})", "abc"},
        {"an escape at the end of a look-alike", R"({\rtf1\uc3\u537 a\'ffbc})", "\u0219c"},
        {"a group in a look-alike", R"({\rtf1\uc3\u537 a{b}c})", "\u0219bc"},
        {"more tab stops than editors take",
         R"({\rtf1\pard\tx1\tx2\tx3\tx4\tx5\tx6\tx7\tx8\tx9\tx10\tx11\tx12\tx13\tx14\tx15\tx16\tx17\tx18\tx19\tx20\tx21\tx22)"
         R"(\tx23\tx24\tx25\tx26\tx27\tx28\tx29\tx30\tx31\tx32\tx33 a})",
         "<tab1 tab2 tab3 tab4 tab5 tab6 tab7 tab8 tab9 tab10 tab11 tab12 tab13 tab14 tab15 tab16 tab17 "
         "tab18 tab19 "
         "tab20 tab21 tab22 tab23 tab24 tab25 tab26 tab27 tab28 tab29 tab30 tab31 tab32>a"},
    };
}

}  // namespace tavrin::tests
