// What programs write looks with.

#include "unit/notes/corpus.h"

namespace tavrin::tests {

std::vector<NoteSample> LookSamples() {
    return {
        // Characters.
        {"switched on and off", R"({\rtf1 a\b b\b0 c\i d\i0 e})", "a{b|b}c{i|d}e"},
        {"a group's own look", R"({\rtf1 a{\b b{\i c}d}e})", "a{b|b}{b i|c}{b|d}e"},
        {"everything plain again", R"({\rtf1\b\i\ul\fs40 a\plain b})", "{fs40 b i ul|a}b"},
        {"every way to underline", R"({\rtf1\ul a\uldb b\ulwave c\uldash d\ulth e\ulnone f\ulw g\ul0 h})",
         "{ul|abcde}f{ul|g}h"},
        {"struck through once and twice", R"({\rtf1\strike a\strike0 b\striked1 c\striked0 d})",
         "{strike|a}b{strike|c}d"},
        {"text in capitals", R"({\rtf1\uc1 a\caps b{\'e9\u537?\u255?}1\caps0 c{\caps d\plain e}})",
         "aB\u00C9\u0218\u01781cDe"},
        {"capitals of other alphabets", R"({\rtf1\caps\u969?\u1078?\u322?\u382?\u223?\u247?})",
         "\u03A9\u0416\u0141\u017D\u00DF\u00F7"},
        {"small capitals", R"({\rtf1 a\scaps Ion 2\u537?\caps d\caps0\scaps0 e\scaps\fs40 f\plain g})",
         "aI{fs19|ON} 2{fs19|\u0218}De{fs32|F}g"},
        {"high and low", R"({\rtf1 m{\super 2} H{\sub 2}O x\super y\nosupersub z})",
         "m{super|2} H{sub|2}O x{super|y}z"},
        {"high and low by points", R"({\rtf1 a\up6 b\up0 c\dn6 d\dn0 e})", "a{super|b}c{sub|d}e"},
        {"sizes", R"({\rtf1\fs20 a\fs21 b\fs c})", "{fs20|a}{fs21|b}c"},
        {"sizes beyond all bounds", R"({\rtf1\fs0 a\fs-5 b\fs1 c\fs99999 d})", "ab{fs2|c}{fs3276|d}"},
        {"colours", R"({\rtf1{\colortbl;\red255\green0\blue0;\red0\green0\blue255;}\cf1 a\cf2 b\cf0 c})",
         "{FF0000|a}{0000FF|b}c"},
        {"colours without a first one",
         R"({\rtf1{\colortbl\red255\green128\blue0;\red0\green0\blue0;}\cf0 a\cf1 b})",
         "{FF8000|a}{000000|b}"},
        {"colours beyond the table", R"({\rtf1{\colortbl;\red999\green-5\blue7;}\cf1 a\cf9 b\cf-1 c})",
         "{FF0007|a}bc"},
        {"marked text",
         R"({\rtf1{\colortbl;\red255\green255\blue0;}a\highlight1 b\highlight0 c\cb1 d\cb0 e\chcbpat1 f})",
         "a{on FFFF00|b}c{on FFFF00|d}e{on FFFF00|f}"},
        {"what looks nobody can show", R"({\rtf1 a b\outl c\shad d\expnd4 e\kerning1 f\lang1048 g})",
         "a bcdefg"},
        {"styles also say what they mean",
         R"({\rtf1{\stylesheet{\s0 Normal;}{\s1\b\fs32 heading 1;}}\s1\b\fs32 Titlu})", "{fs32 b|Titlu}"},

        // Paragraphs.
        {"alignments", R"({\rtf1\pard\qc a\par\pard\qr b\par\pard\qj c\par\pard\ql d\par})",
         "<center>a\n<right>b\n<justified>c\nd"},
        {"a paragraph's look is what its end says", R"({\rtf1 a\qc\par b\pard\par c})", "<center>a\nb\nc"},
        {"a look goes on", R"({\rtf1\pard\qc a\par b\par\pard c})", "<center>a\n<center>b\nc"},
        {"a group keeps its paragraph's look", R"({\rtf1{\pard\qc a\par}b\par})", "<center>a\nb"},
        {"indents", R"({\rtf1\pard\li720\ri360\fi-360 a\par})", "<left720 right360 first-360>a"},
        {"indents off the page", R"({\rtf1\pard\li-720 a\par\pard\fi-360 b\par\pard\ri-5 c\par})", "a\nb\nc"},
        {"a first line that would be off the page", R"({\rtf1\pard\li200\fi-360 a\par})",
         "<left200 first-200>a"},
        {"indents beyond all bounds", R"({\rtf1\pard\li999999999 a\par\pard\fi999999999\li5 b\par})",
         "<left31680>a\n<left5 first31675>b"},
        {"space around", R"({\rtf1\pard\sb120\sa240 a\par\pard\sb-5\sa-5 b\par})",
         "<before120 after240>a\nb"},
        {"tab stops", R"({\rtf1\pard\tx720\tqr\tx1440\tqc\tx2880\tqdec\tx4320 a\tab b\par})",
         R"(<tab720 rtab1440 ctab2880 dtab4320>a\tb)"},
        {"tabs of another width than usual", R"({\rtf1\deftab6000 a\tab b\par c\par\tx7000 d\tab e\par})",
         R"(<tab6000 tab12000 tab18000 tab24000 tab30000>a\tb)"
         "\nc\n"
         R"(<tab7000 tab12000 tab18000 tab24000 tab30000>d\te)"},
        {"tabs as wide as a centimetre's user has them", R"({\rtf1\deftab708 a\tab b})", R"(a\tb)"},
        {"tabs of no width", R"({\rtf1\deftab0 a\tab b\deftab-5\par c\tab d\deftab99999999})",
         R"(a\tb)"
         "\n"
         R"(c\td)"},
        {"tab stops before the page", R"({\rtf1\ansi\tx-1080 a\par})", "a"},
        {"tab stops in disorder, and twice", R"({\rtf1\pard\tx1440\tx720\tx1440\tx0 a\par})",
         "<tab720 tab1440>a"},
        {"dots before a tab stop", R"({\rtf1\pard\tqr\tldot\tx9000 a\par})", "<rtab9000>a"},
        {"exact lines", R"({\rtf1\pard\sl-320 a\par x\par})", "<exact320>a\n<exact320>x"},
        {"exact lines with the word for multiples", R"({\rtf1\pard\sl-320\slmult0 a\par})", "<exact320>a"},
        {"exact lines with two dashes", R"({\rtf1\pard\sl--320 a\par\pard\sl--240\slmult1 b\par\par--5 c})",
         "<exact320>a\nb\n\n--5 c"},
        {"lines of at least that height", R"({\rtf1\pard\sl320 a\par})", "<atleast320>a"},
        {"multiples of lines",
         R"({\rtf1\pard\sl360\slmult1 a\par\pard\sl240\slmult1 b\par\pard\sl-480\slmult1 c\par})",
         "<lines360>a\nb\n<lines480>c"},
        {"lines of no height", R"({\rtf1\pard\sl0 a\par\pard\sl1 b\par\pard\sl-5 c\par})", "a\nb\nc"},
        {"everything of a paragraph plain again", R"({\rtf1\pard\qc\li5\tx720\sl320\sb5 a\par\pard b\par})",
         "<center left5 before5 atleast320 tab720>a\nb"},
        {"what of a paragraph nobody keeps",
         R"({\rtf1\pard\widctlpar\keep\keepn\hyphpar\brdrb\brdrs\brdrw10 \outlinelevel1\cbpat1 a\par})", "a"},
    };
}

}  // namespace tavrin::tests
