// Fields, objects, pictures, tables, lists, and what stands in a file without being the note's text.

#include "unit/notes/corpus.h"

namespace tavrin::tests {

std::vector<NoteSample> StructureSamples() {
    return {
        // Fields.
        {"a link", R"({\rtf1 a {\field{\*\fldinst HYPERLINK "x"}{\fldrslt legatura}} b})", "a legatura b"},
        {"a link with looks",
         R"({\rtf1 a {\field{\*\fldinst{HYPERLINK "http://exemplu.ro"}}{\fldrslt{\ul\b aici}}}.})",
         "a {b ul|aici}."},
        {"a date", R"({\rtf1{\field\fldlock{\*\fldinst DATE \\@ "d.M.yyyy"}{\fldrslt 1.2.2003}}})",
         "1.2.2003"},
        {"a reference within a result",
         R"({\rtf1{\field{\*\fldinst REF x}{\fldrslt vezi {\field{\*\fldinst PAGEREF x}{\fldrslt 12}}}}})",
         "vezi 12"},
        {"a field without a result", R"({\rtf1 a{\field{\*\fldinst PAGE}}b})", "ab"},
        {"an instruction without a star", R"({\rtf1 a{\field{\fldinst PAGE}{\fldrslt 3}}b})", "a3b"},

        {"a symbol", R"({\rtf1 a{\field{\*\fldinst SYMBOL 183 \\f Symbol \\s 10}{\fldrslt\f3\fs20}}b})",
         "a{Symbol symbols fs20|\uF0B7}b"},
        {"a symbol of a text program",
         R"({\rtf1 a{\field{\*\fldinst{\rtlch\fcs1\af0\f3 SYMBOL 0xFC \\f "Wingdings" \\h}}{\fldrslt{\b\f3}}}b})",
         "a{Wingdings symbols|\uF0FC}b"},
        {"a symbol with a result", R"({\rtf1 a{\field{\*\fldinst SYMBOL 183 \\f Symbol}{\fldrslt *}}b})",
         "a*b"},
        {"a symbol in its own font",
         R"({\rtf1{\fonttbl{\f0 Arial;}{\f1\fcharset2 Webdings;}}\f0 a{\field\f1{\*\fldinst SYMBOL 97}}b})",
         "a{Webdings symbols|\uF061}b"},
        {"symbols of fonts with letters",
         R"({\rtf1{\field{\*\fldinst SYMBOL 169 \\f "Times New Roman CE"}}{\field{\*\fldinst SYMBOL 8364 \\u}}})",
         "{Times New Roman|\u00A9}\u20AC"},
        {"symbols that are none",
         R"({\rtf1 a{\field{\*\fldinst SYMBOL x}}{\field{\*\fldinst SYMBOL -5}}{\field{\*\fldinst SYMBOL 13 \\f Symbol}})"
         R"({\field{\*\fldinst SYMBOL 8233}}{\field{\*\fldinst SYMBOL 32 \\f Verdana}}{\field{\*\fldinst SYMBOL}}b})",
         "ab"},
        {"symbols that are not to be seen",
         R"({\rtf1 a{\v{\field{\*\fldinst SYMBOL 183 \\f Symbol}}}{\header{\field{\*\fldinst SYMBOL 183 \\f Symbol}}}b})",
         "ab"},
        {"a symbol in a footnote",
         R"({\rtf1 a{\footnote{\field{\*\fldinst SYMBOL 169 \\f Arial}{\fldrslt}}}b})", "a [\u00A9]b"},
        {"fields within an instruction",
         R"({\rtf1 a{\field{\*\fldinst IF {\field{\*\fldinst PAGE}{\fldrslt 1}} = 2 \par}{\fldrslt nu}}b})",
         "anub"},
        {"boxes of a form",
         R"({\rtf1{\field{\*\fldinst{ FORMCHECKBOX {\*\formfield{\fftype1\ffres25\ffdefres0{\*\ffname Bifat1}}}}}{\fldrslt}}da )"
         R"({\field{\*\fldinst FORMCHECKBOX {\*\formfield{\fftype1\ffres25\ffdefres1}}}{\fldrslt}}nu )"
         R"({\field{\*\fldinst FORMCHECKBOX {\*\formfield{\fftype1\ffres1\ffdefres0}}}}poate)"
         R"({\field{\*\fldinst FORMCHECKBOX {\*\formfield{\fftype1\ffres0\ffdefres1}}}{\fldrslt}}})",
         "\u2610da \u2612nu \u2612poate\u2610"},
        {"a text field of a form",
         R"({\rtf1{\field{\*\fldinst FORMTEXT {\*\formfield{\fftype0\ffres1{\*\ffdeftext gol}}}}{\fldrslt Ion}}})",
         "Ion"},

        // Objects and pictures.
        {"an object's readable text",
         R"({\rtf1 a{\object\objemb\objw300{\*\objclass Package}{\*\objdata 0105}{\result vizibil}}b})",
         "avizibilb"},
        {"a linked object",
         R"({\rtf1 a{\object\objautlink{\*\objclass Excel.Sheet.8}{\*\objdata 01}{\result{\b 12}\par}}b})",
         "a{b|12}\nb"},
        {"an object's other text", R"({\rtf1 a{\object x{y}{\*\objdata 00}}b})", "ab"},
        {"a note that claims to be an object", R"({\rtf1\object\objemb text{\*\objdata 0105}})", "text"},
        {"a picture",
         R"({\rtf1 a{\pict\pngblip\picwgoal300\pichgoal150 89504e470d0a1a0a0000000d494844520000000200000001080200000000)"
         R"(0000000049454e44ae426082}b})",
         "a(png 300x150)b"},
        {"a picture without a size",
         R"({\rtf1{\pict\pngblip 89504E470D0A1A0A0000000D49484452000000020000000108020000000000000049454E44AE426082}})",
         "(png 30x15)"},
        {"a picture that is scaled",
         R"({\rtf1{\pict\picscalex50\picscaley200\picwgoal300\pichgoal300\jpegblip ffd8ffe000044a46ffc0000b0800100020)"
         R"(0101ffd9}})",
         "(jpeg 150x600)"},
        {"a picture for new readers and one for old",
         R"({\rtf1 a{\*\shppict{\pict\pngblip 89504e470d0a1a0a0000000d49484452000000010000000108020000000000000049454e44)"
         R"(}}{\nonshppict{\pict\wmetafile8 0100}}b})",
         "a(png 15x15)b"},
        {"a picture for old readers alone",
         R"({\rtf1 a{\nonshppict{\pict\pngblip 89504e470d0a1a0a0000000d49484452000000010000000108020000000000000049454e44)"
         R"(}}b})",
         "a(png 15x15)b"},
        {"a picture for old readers, and one for new ones that no note may hold",
         R"({\rtf1 a{\*\shppict{\pict\emfblip 0100}}{\nonshppict{\pict\jpegblip ffd8ffc0000b08000100010101ffd9}}b})",
         "a(jpeg 15x15)b"},
        {"the same picture for both twice",
         R"({\rtf1{\*\shppict{\pict\jpegblip ffd8ffc0000b08000100010101ffd9}}{\nonshppict{\pict\jpegblip ffd8ffc0000b08000100010101ffd9}})"
         R"({\*\shppict{\pict\jpegblip ffd8ffc0000b08000100010101ffd9}}{\nonshppict{\pict\jpegblip ffd8ffc0000b08000100010101ffd9}}})",
         "(jpeg 15x15)(jpeg 15x15)"},
        {"a picture's own words",
         R"({\rtf1{\pict{\*\picprop\shplid1{\sp{\sn shapeType}{\sv 75}}}{\*\blipuid 00ff}\jpegblip ffd8ffc0000b08000100)"
         R"(010101ffd9}})",
         "(jpeg 15x15)"},
        {"a box of text",
         R"({\rtf1 sus\par{\shp{\*\shpinst\shpleft100{\sp{\sn shapeType}{\sv 202}}{\shptxt\pard\qc in cutie\par}})"
         R"({\shprslt{\*\do{\dptxbx{\dptxbxtext in cutie\par}}}}}jos})",
         "sus\n<center>in cutie\njos"},
        {"a box of text in the middle of a paragraph", R"({\rtf1 unu{\shp{\*\shpinst{\shptxt doi}}}trei})",
         "unu\ndoi\ntrei"},
        {"an old box of text", R"({\rtf1 a\par{\*\do\dobxpage{\dptxbx{\dptxbxtext\pard b\par}}}c})",
         "a\nb\nc"},
        {"a picture in a shape",
         R"({\rtf1{\shp{\*\shpinst{\sp{\sn pib}{\sv{\pict\jpegblip ffd8ffc0000b08000100010101ffd9}}}}}})",
         "(jpeg 15x15)"},

        // Tables.
        {"a table",
         R"({\rtf1\trowd\trgaph70\cellx1000\cellx2000\pard\intbl a\cell b\cell\row\trowd\cellx1000\pard\intbl c\cell d\cell)"
         R"(\row\pard e})",
         "a\\tb\nc\\td\ne"},
        {"a table with words of its cells",
         R"({\rtf1\trowd\trqc\trrh300\clvertalt\clbrdrt\brdrs\brdrw10\cltxlrtb\cellx1000\clvertalc\cellx2000 a\cell b\cell\row})",
         R"(a\tb)"},
        {"a row whose cells stand differently",
         R"({\rtf1\trowd\cellx1\cellx2\pard\intbl\ql Produs\cell\pard\intbl\qr 12,50\cell\row\pard x})",
         "Produs\\t12,50\nx"},
        {"text that was moved", R"({\rtf1{\mvf\mvauth1 mutat }x {\mvt\mvauth1 mutat}})", "x mutat"},
        {"empty cells", R"({\rtf1\trowd\cellx1\cellx2\cellx3\intbl\cell b\cell\cell\row c})", "\\tb\nc"},
        {"paragraphs in a cell", R"({\rtf1\trowd\cellx1\cellx2\intbl a\par b\cell c\cell\row d})",
         "a\nb\\tc\nd"},
        {"a row's words after its cells",
         R"({\rtf1\pard\intbl a\cell b\cell{\trowd\cellx1\cellx2\row}\pard c\par})", "a\\tb\nc"},
        {"a table in a table",
         R"({\rtf1\trowd\cellx4000\pard\intbl\itap2 x\nestcell{\nonesttables\par}y\nestcell{\nonesttables\par}{\*\nesttableprops)"
         R"(\trowd\cellx1000\cellx2000\nestrow}{\nonesttables\par}\pard\intbl\itap1 z\cell\row\pard w})",
         "x\\ty\nz\nw"},
        {"a table with looks", R"({\rtf1\trowd\cellx1\cellx2\pard\intbl\qr{\b a}\cell{\i b}\cell\row})",
         R"(<right>{b|a}{i|\tb})"},

        // Lists.
        {"bullets of an editor",
         R"({\rtf1{\fonttbl{\f0 Arial;}{\f1\fcharset2 Symbol;}}\pard{\pntext\f1\'B7\tab}{\*\pn\pnlvlblt\pnf1\pnindent0{\pntxtb\'B7}})"
         R"(\fi-360\li720\f0 unu\par{\pntext\f1\'B7\tab}doi\par\pard trei\par})",
         "<bullet left720 first-360>unu\n<bullet left720 first-360>doi\ntrei"},
        {"bullets of a text program",
         R"({\rtf1{\*\listtable{\list{\listlevel\levelnfc23{\leveltext\'01\u-3913 ?;}}}}{\fonttbl{\f0 Arial;}{\f3\fcharset2 Symbol;}})"
         R"({\listtext\pard\plain\f3 \'b7\tab}\pard\plain\fi-360\li720\ls1\ilvl0\f0 unu\par{\listtext\f3 \'b7\tab}doi\par\pard trei})",
         "<bullet left720 first-360>unu\n<bullet left720 first-360>doi\ntrei"},
        {"a dash for a bullet", R"({\rtf1{\listtext -\tab}\pard\li360 unu\par})", "<bullet left360>unu"},
        {"a letter for a bullet", R"({\rtf1{\listtext o\tab}unu\par{\listtext a\tab}doi\par})",
         "<bullet>unu\na\\tdoi"},
        {"a list's level without numbers", R"({\rtf1{\listtext\tab}\pard\fi-360\li720\ls3 unu\par})",
         "<left720 first-360>unu"},
        {"numbers of a list stay text",
         R"({\rtf1{\listtext 1.\tab}\pard\ls2 unu\par{\listtext 2.\tab}doi\par})", "1.\\tunu\n2.\\tdoi"},
        {"numbers of an editor's list",
         R"({\rtf1\pard{\pntext\f0 a)\tab}{\*\pn\pnlvlbody\pnf0\pnindent0\pnstart1\pnlcltr{\pntxta )}}unu\par})",
         R"(a)\tunu)"},
        {"a bullet that nobody wrote out",
         R"({\rtf1\pard{\*\pn\pnlvlblt{\pntxtb\'b7}}unu\par doi\par\pard trei})",
         "<bullet>unu\n<bullet>doi\ntrei"},

        // What is no text of the note.
        {"heads and feet of pages", R"({\rtf1{\header\pard antet\par}{\footerr\pard subsol\par}text})",
         "text"},
        {"who wrote it", R"({\rtf1{\info{\title Titlu}{\author Autor}{\creatim\yr2003}}text})", "text"},
        {"what only its writer knows",
         R"({\rtf1{\*\generator Alt program 1.0;}{\*\themedata 504b}{\*\xyz{\b deep}{{}}}text})", "text"},
        {"groups with a star and a look", R"({\rtf1 a{\*\b c}d})", "ad"},
        {"words that nobody knows", R"({\rtf1\xyz a\qwert-7 b{\unknown c}})", "abc"},
        {"hidden text", R"({\rtf1 a{\v ascuns\par}b\v c\v0 d})", "abd"},
        {"text that was deleted", R"({\rtf1 a{\deleted\revauthdel1 sters\par}{\revised\revauth1 nou}b})",
         "anoub"},
        {"comments",
         R"({\rtf1 a{\*\atnid X}{\*\atnauthor Y}\chatn{\*\annotation{\*\atnref 1}comentariu\par}b})", "ab"},
        {"marks of an index",
         R"({\rtf1 a{\xe{\v cuvant}}{\tc cuprins}{\*\bkmkstart semn}b{\*\bkmkend semn}c})", "abc"},
        {"a footnote in brackets",
         R"({\rtf1 fapt{\super\chftn{\footnote\pard\plain{\super\chftn} Sursa\par pagina 5.\par}}, zise.\par alt})",
         "fapt [Sursa pagina 5.], zise.\nalt"},
        {"an empty footnote", R"({\rtf1 a{\footnote\chftn  }b})", "ab"},
        {"pages and sections", R"({\rtf1 a\page b\par\sect\column c\sect d})", "a\nb\nc\nd"},
        {"mail in two formats",
         R"({\rtf1\fromhtml1{\*\htmltag64 <p>}\htmlrtf{\b\htmlrtf0 salut\htmlrtf}\htmlrtf0{\*\htmltag72 </p>}\par})",
         "{b|salut}"},
        {"a document within a document", R"({\rtf1 a{\rtf1\ansi b}c})", "abc"},
    };
}

}  // namespace tavrin::tests
