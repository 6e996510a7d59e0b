// The note pad's actions: new, open, save, font, colour, the three switches, and what happens when they fail.

#include <new>
#include <utility>

#include "data/error.h"
#include "notes_fixture.h"

namespace tavrin::tests {
namespace {

using forms::CharacterFormat;
using forms::FileDialogSettings;
using forms::FontDialogSettings;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string File = "C:\\Note\\azi.rtf";
const ShownMessage Question{"Doriti sa creati o nota noua ?", 32, 4, "Bloc Notes"};

ShownMessage Failure(const std::string& prompt) {
    return {prompt, 16, 0, "Bloc Notes"};
}

ShownMessage Warning(const std::string& prompt) {
    return {prompt, 48, 0, "Bloc Notes"};
}

const ShownMessage CutNote = Warning("Fisierul ales este incomplet. S-a incarcat numai inceputul notei !");
const ShownMessage PicturesNotShown =
    Warning("Unele imagini din fisier nu pot fi pastrate si lipsesc din nota !");

class NotesActionTest : public NotesTest {
  protected:
    /// Saves the text under that name and goes on.
    void SaveAs(Notes& window, const std::string& name) {
        desktop.dialogs.chosenFile = name;
        window.ImgBouton[Notes::Save].Click();
        desktop.dialogs.chosenFile.reset();
    }

    void ExpectUsable(const Notes& window) {
        EXPECT_TRUE(window.Enabled());
        EXPECT_EQ(ActiveWindow(), "Notes");
        EXPECT_EQ(FocusedControl(), "txtNota");
        EXPECT_THAT(desktop.reports, IsEmpty());
    }
};

// New.

TEST_F(NotesActionTest, YesEmptiesTheNoteWithoutSavingIt) {
    Notes& window = Open();
    keyboard.Type("abc");
    NewNote(window);
    EXPECT_THAT(messages.shown, ElementsAre(Question));
    EXPECT_EQ(editor->Text(), "");
    EXPECT_THAT(desktop.dialogs.saved, IsEmpty());
    EXPECT_THAT(desktop.dialogs.opened, IsEmpty());
    EXPECT_THAT(desktop.files.contents, IsEmpty());
    ExpectUsable(window);
}

TEST_F(NotesActionTest, ANewNoteIsPlain) {
    Notes& window = Open();
    window.ImgBouton[Notes::Bold].Click();
    keyboard.Type("abc");
    EXPECT_TRUE(window.ImgBouton[Notes::Bold].Checked());
    NewNote(window);
    EXPECT_FALSE(window.ImgBouton[Notes::Bold].Checked());
}

// Open.

TEST_F(NotesActionTest, NoAsksForAFileAndLoadsIt) {
    Notes& window = Open();
    keyboard.Type("first");
    SaveAs(window, File);
    NewNote(window);
    keyboard.Type("second");
    desktop.dialogs.chosenFile = File;
    messages.shown.clear();
    OpenNote(window);
    EXPECT_THAT(messages.shown, ElementsAre(Question));
    EXPECT_THAT(desktop.dialogs.opened, ElementsAre(FileDialogSettings{2060, "Alegeti fisierul dorit !",
                                                                       "Nota (*.rtf)|*.rtf", File}));
    EXPECT_EQ(editor->Text(), "first");
    ExpectUsable(window);
}

TEST_F(NotesActionTest, AMessageOfAnyOtherAnswerCountsAsNo) {
    Notes& window = Open();
    Answer(2);
    window.ImgBouton[Notes::NewOrOpen].Click();
    EXPECT_EQ(desktop.dialogs.opened.size(), 1U);
}

TEST_F(NotesActionTest, ACancelledOpenDialogKeepsTheText) {
    Notes& window = Open();
    keyboard.Type("abc");
    OpenNote(window);
    EXPECT_EQ(editor->Text(), "abc");
    EXPECT_EQ(editor->loads, 0);
    ExpectUsable(window);
    // A file that was chosen before is not taken again by cancelling.
    SaveAs(window, File);
    keyboard.Type("def");
    OpenNote(window);
    EXPECT_EQ(desktop.dialogs.opened.back().fileName, File) << "but it is offered again";
    EXPECT_EQ(editor->Text(), "abcdef");
    EXPECT_EQ(editor->loads, 0);
}

using NotesActionThorough = NotesActionTest;

TEST_F(NotesActionThorough, AFileThatGivesNoNoteIsToldAndNeverReachesTheEditor) {
    const ShownMessage noNote = Failure("Fisierul ales nu este o nota RTF !");
    const ShownMessage nothingLeft = Failure("Fisierul ales este incomplet si nu mai poate fi citit !");
    const ShownMessage tooLarge = Failure("Nota este prea mare !");
    Notes& window = Open();
    keyboard.Type("abc");
    desktop.dialogs.chosenFile = File;
    std::string large = "{\\rtf1 ";
    for (std::size_t i = 0; i <= notes::MaximumParagraphs; ++i)
        large += "\\par";
    for (const auto& [content, told] : {std::pair(std::string(), noNote),
                                        {"text", noNote},
                                        {"{\\rtf1{\\info", nothingLeft},
                                        {large, tooLarge}}) {
        messages.shown.clear();
        desktop.files.contents[File] = content;
        OpenNote(window);
        EXPECT_THAT(messages.shown, ElementsAre(Question, told));
        EXPECT_EQ(editor->Text(), "abc");
        ExpectUsable(window);
    }
    EXPECT_EQ(editor->loads, 0);
}

TEST_F(NotesActionThorough, AFileOfManyMegabytesIsReadWhereItsTextIsShort) {
    Notes& window = Open();
    desktop.dialogs.chosenFile = File;
    desktop.files.contents[File] = R"({\rtf1 abc{\*\objdata )" + std::string(20 << 20, '0') + "}}";
    OpenNote(window);
    EXPECT_EQ(editor->Text(), "abc");
    EXPECT_THAT(messages.shown, ElementsAre(Question));
}

TEST_F(NotesActionTest, AFileThatLostItsEndIsLoadedAsFarAsItGoesAndThatIsTold) {
    Notes& window = Open();
    desktop.dialogs.chosenFile = File;
    desktop.files.contents[File] = "{\\rtf1 unu\\par doi";
    messages.whileShowing = [&] {
        if (messages.shown.size() == 2) {
            EXPECT_EQ(editor->Text(), "unu\r\ndoi");
        }
    };
    OpenNote(window);
    EXPECT_THAT(messages.shown, ElementsAre(Question, CutNote));
    EXPECT_EQ(editor->Text(), "unu\r\ndoi");
    ExpectUsable(window);
}

TEST_F(NotesActionTest, PicturesThatCannotBeShownAreTold) {
    Notes& window = Open();
    desktop.dialogs.chosenFile = File;
    desktop.files.contents[File] = R"({\rtf1 a{\pict\wmetafile8 01}b})";
    OpenNote(window);
    EXPECT_THAT(messages.shown, ElementsAre(Question, PicturesNotShown));
    EXPECT_EQ(editor->Text(), "ab");
    // One that a note may hold, and this editor does not.
    messages.shown.clear();
    desktop.files.contents[File] = R"({\rtf1 c{\pict\jpegblip ffd8ffc0000b08000100010101ffd9}})";
    OpenNote(window);
    EXPECT_THAT(messages.shown, ElementsAre(Question, PicturesNotShown));
    ExpectUsable(window);
}

TEST_F(NotesActionTest, ParagraphsThatWereDividedAreToldAndThoseOfTheUserAreSavedAsTheyAre) {
    Notes& window = Open();
    std::string words;
    while (words.size() < 12'000)
        words += "cuvant, ";
    editor->Type(words);
    SaveAs(window, File);
    const std::string saved = desktop.files.contents[File];
    EXPECT_EQ(saved.find("\\par\r"), saved.rfind("\\par\r")) << "one paragraph";
    EXPECT_THAT(messages.shown, IsEmpty());
    desktop.dialogs.chosenFile = File;
    OpenNote(window);
    EXPECT_THAT(messages.shown,
                ElementsAre(Question,
                            Warning("Paragrafele foarte lungi din fisier au fost impartite in mai multe !")));
    EXPECT_NE(editor->Text().find("\r\n"), std::string::npos);
    ExpectUsable(window);
}

TEST_F(NotesActionTest, WhatTheEditorGetsIsWrittenAnew) {
    Notes& window = Open();
    desktop.dialogs.chosenFile = File;
    desktop.files.contents[File] =
        R"({\rtf1 a{\object\objemb{\*\objdata 01}{\result seen}}b{\unknown\xyz-5 c}})";
    OpenNote(window);
    EXPECT_EQ(editor->Text(), "aseenbc");
    SaveAs(window, File);
    EXPECT_EQ(desktop.files.contents[File].find("object"), std::string::npos);
}

TEST_F(NotesActionTest, AFileThatIsNotThereOrThatTheEditorRefusesIsToldAndKeepsTheText) {
    Notes& window = Open();
    keyboard.Type("abc");
    desktop.dialogs.chosenFile = File;
    OpenNote(window);
    EXPECT_THAT(messages.shown,
                ElementsAre(Question, Failure("Nota nu a putut fi incarcata !\r\nThe file is not there")));
    EXPECT_EQ(editor->loads, 0);
    messages.shown.clear();
    desktop.files.contents[File] = "{\\rtf1 def}";
    editor->SelectAll();
    editor->FormatSelection({.bold = true});
    editor->loadsToFail = 1;
    OpenNote(window);
    EXPECT_EQ(editor->loads, 2);
    EXPECT_EQ(editor->Text(), "abc");
    EXPECT_EQ(editor->FormatAt(2).bold, true);
    EXPECT_THAT(messages.shown,
                ElementsAre(Question, Failure("Nota nu a putut fi incarcata !\r\nno document of "
                                              "this editor")));
    ExpectUsable(window);
}

TEST_F(NotesActionTest, AnEditorThatDoesNotTakeTheOldTextBackEitherIsTold) {
    Notes& window = Open();
    keyboard.Type("abc");
    desktop.dialogs.chosenFile = File;
    desktop.files.contents[File] = "{\\rtf1 def}";
    editor->loadsToFail = 2;
    OpenNote(window);
    EXPECT_THAT(messages.shown,
                ElementsAre(Question, Failure("Nota nu a putut fi incarcata !\r\nNici textul din "
                                              "fereastra nu a putut fi pastrat in intregime !")));
    ExpectUsable(window);
}

TEST_F(NotesActionTest, ANoteThatIsThereIsNotToldAsNotLoadedWhateverTheEditorSaysAfterwards) {
    Notes& window = Open();
    desktop.dialogs.chosenFile = File;
    desktop.files.contents[File] = R"({\rtf1 def{\pict\jpegblip ffd8ffc0000b08000100010101ffd9}})";
    const std::function<void()> failures[] = {[] { throw data::Error(-1, "the editor fails"); },
                                              [] { throw std::bad_alloc(); },
                                              [&] { editor->written = "{\\rtf1 d"; }};
    for (const auto& fail : failures) {
        messages.shown.clear();
        editor->SetText("abc");
        int streams = 0;  // the old text goes, the new one comes, and is asked for
        editor->whenStreaming = [&] {
            if (++streams == 3) fail();
        };
        OpenNote(window);
        EXPECT_EQ(streams, 3);
        EXPECT_EQ(editor->Text().substr(0, 3), "def");
        EXPECT_THAT(
            messages.shown,
            ElementsAre(Question, Warning("Nota a fost incarcata, dar nu s-a putut afla daca imaginile "
                                          "ei pot fi pastrate !")));
        ExpectUsable(window);
    }
}

TEST_F(NotesActionTest, AMessageThatFailsMakesNoFailureOfWhatItTells) {
    Notes& window = Open();
    desktop.dialogs.chosenFile = File;
    desktop.files.contents[File] = "{\\rtf1 unu";
    messages.whileShowing = [&] {
        if (messages.shown.back() != Question) throw data::Error(-5, "no message");
    };
    OpenNote(window);
    EXPECT_THAT(messages.shown, ElementsAre(Question, CutNote));
    EXPECT_EQ(desktop.reports.size(), 1U);
    messages.shown.clear();
    editor->written = R"({\rtf1 a{\pict\wmetafile8 01}b})";
    SaveAs(window, File);
    EXPECT_EQ(messages.shown.size(), 1U) << "what the file lacks, and not that it was not written";
    EXPECT_EQ(desktop.reports.size(), 2U);
}

TEST_F(NotesActionTest, AWindowThatGoesWhileItTellsSomethingSaysNoMore) {
    Notes& window = Open();
    desktop.dialogs.chosenFile = File;
    desktop.files.contents[File] = R"({\rtf1 a{\pict\wmetafile8 01}b)";
    messages.whileShowing = [&] {
        if (messages.shown.back() == CutNote) application.UnloadWindow("Notes");
    };
    OpenNote(window);
    EXPECT_THAT(messages.shown, ElementsAre(Question, CutNote));
    EXPECT_FALSE(IsOpen());
    EXPECT_THAT(desktop.reports, IsEmpty());
}

// Save.

TEST_F(NotesActionTest, SavingAsksForAFileAndKeepsTextAndFormat) {
    Notes& window = Open();
    keyboard.Type("plain");
    window.ImgBouton[Notes::Bold].Click();
    keyboard.Type("bold");
    SaveAs(window, File);
    EXPECT_THAT(desktop.dialogs.saved, ElementsAre(FileDialogSettings{
                                           2060, "Alegeti calea si numele fisierului in care se va salva !",
                                           "Nota (*.rtf)|*.rtf", ""}));
    EXPECT_TRUE(desktop.files.contents[File].starts_with("{\\rtf1"));
    ExpectUsable(window);
    NewNote(window);
    desktop.dialogs.chosenFile = File;
    OpenNote(window);
    EXPECT_EQ(editor->Text(), "plainbold");
    EXPECT_FALSE(editor->FormatAt(4).bold.value());
    EXPECT_TRUE(editor->FormatAt(5).bold.value());
}

TEST_F(NotesActionTest, ACancelledSaveDialogWritesNothing) {
    Notes& window = Open();
    keyboard.Type("abc");
    window.ImgBouton[Notes::Save].Click();
    EXPECT_THAT(desktop.files.contents, IsEmpty());
    SaveAs(window, File);
    const std::string saved = desktop.files.contents[File];
    keyboard.Type("def");
    window.ImgBouton[Notes::Save].Click();
    EXPECT_EQ(desktop.files.contents[File], saved);
    EXPECT_EQ(editor->Text(), "abcdef");
    ExpectUsable(window);
}

TEST_F(NotesActionTest, ASaveThatFailsIsToldAndKeepsTheOldFile) {
    Notes& window = Open();
    keyboard.Type("abc");
    SaveAs(window, File);
    const auto before = desktop.files.contents;
    keyboard.Type("def");
    desktop.files.failsToWrite = true;
    SaveAs(window, File);
    EXPECT_THAT(messages.shown, ElementsAre(Failure("Nota nu a putut fi salvata !\r\nThe disk is full")));
    EXPECT_EQ(desktop.files.contents, before);
    ExpectUsable(window);
    desktop.files.failsToWrite = false;
    messages.shown.clear();
    editor->failsToSave = true;
    SaveAs(window, File);
    EXPECT_THAT(messages.shown, ElementsAre(Failure("Nota nu a putut fi salvata !\r\nthe editor fails")));
    EXPECT_EQ(desktop.files.contents, before);
    EXPECT_EQ(editor->Text(), "abcdef");
    ExpectUsable(window);
}

TEST_F(NotesActionTest, AFileThatASaveHasDamagedIsTold) {
    Notes& window = Open();
    keyboard.Type("abc");
    desktop.files.damages = true;
    SaveAs(window, File);
    EXPECT_THAT(messages.shown,
                ElementsAre(Failure("Nota nu a putut fi salvata !\r\nFisierul ales nu mai are nici vechiul "
                                    "continut. Salvati nota intr-un alt fisier !\r\n"
                                    "The disk is full")));
    EXPECT_EQ(editor->Text(), "abc");
    ExpectUsable(window);
}

TEST_F(NotesActionTest, AnEditorThatDoesNotGiveAllOfItsTextDoesNotReplaceAFile) {
    Notes& window = Open();
    keyboard.Type("abc");
    SaveAs(window, File);
    const auto before = desktop.files.contents;
    for (const char* written : {"{\\rtf1 a", "{\\rtf1", "a"}) {
        messages.shown.clear();
        editor->written = written;
        SaveAs(window, File);
        EXPECT_THAT(messages.shown,
                    ElementsAre(Failure("Nota nu a putut fi salvata !\r\nTextul nu a putut fi "
                                        "citit in intregime din fereastra !")));
        EXPECT_EQ(desktop.files.contents, before);
    }
    ExpectUsable(window);
}

TEST_F(NotesActionTest, PicturesThatCannotBeSavedAreTold) {
    Notes& window = Open();
    editor->written = R"({\rtf1 a{\pict\wmetafile8 01}b})";
    SaveAs(window, File);
    EXPECT_THAT(messages.shown,
                ElementsAre(Warning("Nota a fost salvata fara unele imagini, care nu pot fi pastrate !")));
    EXPECT_EQ(desktop.files.contents.count(File), 1U);
    ExpectUsable(window);
}

TEST_F(NotesActionTest, AnEditorsIndentsAreSavedAsTheyAreMeant) {
    Notes& window = Open();
    editor->written = R"({\rtf1\pard\li360\fi360 a\par})";
    SaveAs(window, File);
    EXPECT_NE(desktop.files.contents[File].find(R"(\pard\fi360\li360)"), std::string::npos);
    editor->exchangesIndents = true;
    SaveAs(window, File);
    EXPECT_NE(desktop.files.contents[File].find(R"(\pard\fi-360\li720)"), std::string::npos);
}

// Font.

TEST_F(NotesActionTest, TheFontDialogStartsFromTheSelectionAndGoesBackToIt) {
    Notes& window = Open();
    keyboard.Type("abc");
    editor->Select(0, 2);
    editor->FormatSelection({.face = "Courier New",
                             .points = 12.5,
                             .bold = true,
                             .italic = false,
                             .underline = true,
                             .color = 0x0000FF});
    const CharacterFormat chosen{.face = "Times New Roman",
                                 .points = 18,
                                 .bold = false,
                                 .italic = true,
                                 .underline = false,
                                 .strikeThru = true,
                                 .color = 0xFF0000};
    desktop.dialogs.chosenFont = chosen;
    window.ImgBouton[Notes::ChooseFont].Click();
    ASSERT_EQ(desktop.dialogs.fonts.size(), 1U);
    const FontDialogSettings& shown = desktop.dialogs.fonts.front();
    EXPECT_EQ(shown.flags, 259U);
    EXPECT_EQ(shown.font, (CharacterFormat{.face = "Courier New",
                                           .points = 12.5,
                                           .bold = true,
                                           .italic = false,
                                           .underline = true,
                                           .strikeThru = false,
                                           .color = 0x0000FF}));
    EXPECT_EQ(editor->FormatAt(0), chosen);
    EXPECT_EQ(editor->FormatAt(1), chosen);
    EXPECT_EQ(editor->FormatAt(2).face, "Arial");
    ExpectUsable(window);
}

TEST_F(NotesActionTest, StruckThroughIsOfferedAsItWasChosenLastNotAsItIs) {
    Notes& window = Open();
    keyboard.Type("abc");
    editor->SelectAll();
    editor->FormatSelection({.strikeThru = true});
    window.ImgBouton[Notes::ChooseFont].Click();
    EXPECT_EQ(desktop.dialogs.fonts.back().font.strikeThru, false);
    CharacterFormat chosen = editor->FormatAt(0);
    chosen.strikeThru = true;
    desktop.dialogs.chosenFont = chosen;
    window.ImgBouton[Notes::ChooseFont].Click();
    window.ImgBouton[Notes::ChooseFont].Click();
    EXPECT_EQ(desktop.dialogs.fonts.back().font.strikeThru, true);
}

TEST_F(NotesActionTest, WhatDiffersInTheSelectionIsNotChosenAndStaysSo) {
    Notes& window = Open();
    keyboard.Type("ab");
    editor->Select(1, 1);
    editor->FormatSelection({.face = "Courier New", .bold = true});
    editor->SelectAll();
    window.ImgBouton[Notes::ChooseFont].Click();
    const CharacterFormat& shown = desktop.dialogs.fonts.front().font;
    EXPECT_FALSE(shown.face.has_value());
    EXPECT_FALSE(shown.bold.has_value());
    EXPECT_EQ(shown.points, 10);
    CharacterFormat chosen = shown;
    chosen.points = 20;
    desktop.dialogs.chosenFont = chosen;
    window.ImgBouton[Notes::ChooseFont].Click();
    EXPECT_EQ(editor->FormatAt(0).face, "Arial");
    EXPECT_EQ(editor->FormatAt(1).face, "Courier New");
    EXPECT_EQ(editor->FormatAt(0).points, 20);
    EXPECT_EQ(editor->FormatAt(1).points, 20);
    EXPECT_EQ(editor->FormatAt(1).bold, true);
}

TEST_F(NotesActionTest, ACancelledFontDialogChangesNothing) {
    Notes& window = Open();
    keyboard.Type("abc");
    editor->SelectAll();
    editor->FormatSelection({.strikeThru = true});
    const CharacterFormat before = editor->FormatAt(0);
    window.ImgBouton[Notes::ChooseFont].Click();
    EXPECT_EQ(editor->FormatAt(0), before);
    ExpectUsable(window);
}

// Colour.

TEST_F(NotesActionTest, TheChosenColorIsTheSelections) {
    Notes& window = Open();
    keyboard.Type("abc");
    editor->Select(1, 1);
    desktop.dialogs.chosenColor = 0x00FF00;
    window.ImgBouton[Notes::ChooseColor].Click();
    EXPECT_EQ(editor->FormatAt(0).color, 0U);
    EXPECT_EQ(editor->FormatAt(1).color, 0x00FF00U);
    EXPECT_EQ(editor->FormatAt(1).face, "Arial");
    desktop.dialogs.chosenColor.reset();
    window.ImgBouton[Notes::ChooseColor].Click();
    EXPECT_THAT(desktop.dialogs.colors, ElementsAre(0U, 0x00FF00U)) << "the last one is offered again";
    EXPECT_EQ(editor->FormatAt(1).color, 0x00FF00U) << "cancelled";
    ExpectUsable(window);
}

TEST_F(NotesActionTest, TheFontDialogsColorIsTheOneOfTheColorDialog) {
    Notes& window = Open();
    keyboard.Type("abc");
    editor->SelectAll();
    editor->FormatSelection({.color = 0x123456});
    window.ImgBouton[Notes::ChooseFont].Click();
    window.ImgBouton[Notes::ChooseColor].Click();
    EXPECT_THAT(desktop.dialogs.colors, ElementsAre(0x123456U));
}

// The switches.

struct Switch {
    int button;
    std::optional<bool> CharacterFormat::*property;
};

class NotesSwitchTest : public NotesActionTest, public testing::WithParamInterface<Switch> {
  protected:
    bool Has(std::size_t place) const { return (editor->FormatAt(place).*GetParam().property).value(); }
    void Set(bool value) {
        CharacterFormat change;
        change.*GetParam().property = value;
        editor->FormatSelection(change);
    }
};

TEST_P(NotesSwitchTest, SwitchesAUniformSelectionAndBack) {
    Notes& window = Open();
    keyboard.Type("abcd");
    editor->Select(1, 2);
    const auto button = [&]() -> forms::ToolButton& { return window.ImgBouton[GetParam().button]; };
    EXPECT_FALSE(button().Checked());
    ClickWithMouse(button());
    EXPECT_TRUE(!Has(0) && Has(1) && Has(2) && !Has(3));
    EXPECT_TRUE(button().Checked());
    ClickWithMouse(button());
    EXPECT_TRUE(!Has(0) && !Has(1) && !Has(2) && !Has(3));
    EXPECT_FALSE(button().Checked());
    ExpectUsable(window);
}

TEST_P(NotesSwitchTest, AMixedSelectionGetsItAsAWhole) {
    Notes& window = Open();
    keyboard.Type("abc");
    editor->Select(2, 1);
    Set(true);
    editor->SelectAll();
    EXPECT_FALSE(window.ImgBouton[GetParam().button].Checked());
    window.ImgBouton[GetParam().button].Click();
    EXPECT_TRUE(Has(0) && Has(1) && Has(2));
    window.ImgBouton[GetParam().button].Click();
    EXPECT_FALSE(Has(0) || Has(1) || Has(2));
}

TEST_P(NotesSwitchTest, WithoutASelectionItIsForWhatIsTypedNext) {
    Notes& window = Open();
    keyboard.Type("a");
    window.ImgBouton[GetParam().button].Click();
    keyboard.Type("b");
    window.ImgBouton[GetParam().button].Click();
    keyboard.Type("c");
    EXPECT_TRUE(!Has(0) && Has(1) && !Has(2));
}

TEST_P(NotesSwitchTest, LeavesTheOthersAlone) {
    Notes& window = Open();
    keyboard.Type("a");
    editor->SelectAll();
    CharacterFormat expected = editor->FormatAt(0);
    expected.*GetParam().property = true;
    window.ImgBouton[GetParam().button].Click();
    EXPECT_EQ(editor->FormatAt(0), expected);
    EXPECT_THAT(messages.shown, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(All, NotesSwitchTest,
                         testing::Values(Switch{4, &CharacterFormat::bold},
                                         Switch{5, &CharacterFormat::italic},
                                         Switch{6, &CharacterFormat::underline}));

// While an action runs.

TEST_F(NotesActionTest, TheWindowIsDisabledWhileADialogIsUp) {
    Notes& window = Open();
    int dialogs = 0;
    desktop.dialogs.whileShowing = [&](const forms::Form& owner) {
        ++dialogs;
        EXPECT_EQ(&owner, &window);
        EXPECT_FALSE(window.Enabled());
    };
    messages.whileShowing = [&] { EXPECT_FALSE(window.Enabled()); };
    OpenNote(window);
    for (const int button : {Notes::Save, Notes::ChooseFont, Notes::ChooseColor}) {
        window.ImgBouton[button].Click();
        EXPECT_TRUE(window.Enabled());
    }
    EXPECT_EQ(dialogs, 4);
    EXPECT_EQ(messages.shown.size(), 1U);
}

TEST_F(NotesActionTest, OtherWindowsComeAndGoWhileADialogIsUp) {
    Notes& window = Open();
    const int before = desktop.CallsOf(window).keptOnTop;
    // The dialog takes the activation; the note pad beneath it must not come to the front for that.
    desktop.dialogs.whileShowing = [&](const forms::Form&) {
        desktop.ActivateByUser(nullptr);
        EXPECT_EQ(desktop.CallsOf(window).keptOnTop, before);
    };
    window.ImgBouton[Notes::Save].Click();
    ExpectUsable(window);
}

TEST_F(NotesActionTest, NoActionBeginsInsideAnother) {
    Notes& window = Open();
    desktop.dialogs.whileShowing = [&](const forms::Form&) {
        for (const auto& button : window.ImgBouton)
            button->Click();
    };
    window.ImgBouton[Notes::Save].Click();
    EXPECT_EQ(desktop.dialogs.saved.size(), 1U);
    EXPECT_THAT(desktop.dialogs.fonts, IsEmpty());
    EXPECT_THAT(messages.shown, IsEmpty());
    EXPECT_TRUE(IsOpen());
}

TEST_F(NotesActionTest, ADialogForAFileThatFailsIsToldAndTheOthersEndSilently) {
    Notes& window = Open();
    desktop.dialogs.whileShowing = [](const forms::Form&) { throw data::Error(-1, "no dialog"); };
    OpenNote(window);
    EXPECT_THAT(messages.shown,
                ElementsAre(Question, Failure("Nota nu a putut fi incarcata !\r\nno dialog")));
    ExpectUsable(window);
    messages.shown.clear();
    for (const int button : {Notes::ChooseFont, Notes::ChooseColor}) {
        window.ImgBouton[button].Click();
        ExpectUsable(window);
    }
    EXPECT_THAT(messages.shown, IsEmpty());
    desktop.dialogs.whileShowing = [](const forms::Form&) { throw std::bad_alloc(); };
    window.ImgBouton[Notes::ChooseFont].Click();
    window.ImgBouton[Notes::Save].Click();
    EXPECT_THAT(messages.shown, ElementsAre(Failure("Nota nu a putut fi salvata !\r\nMemorie insuficienta")));
    ExpectUsable(window);
}

TEST_F(NotesActionTest, AnErrorOutsideTheDialogsIsReportedAndTheWindowIsEnabled) {
    Notes& window = Open();
    messages.whileShowing = [] { throw data::Error(-5, "no message"); };
    window.ImgBouton[Notes::NewOrOpen].Click();
    EXPECT_THAT(desktop.reports, ElementsAre(HeadlessDesktop::Report{-5, "no message"}));
    EXPECT_TRUE(window.Enabled());
    window.txtNota.SetPeer(nullptr);
    window.ImgBouton[Notes::Bold].Click();
    EXPECT_EQ(desktop.reports.size(), 2U);
    EXPECT_TRUE(window.Enabled());
}

TEST_F(NotesActionTest, TheWindowMayCloseWhileADialogIsUp) {
    desktop.dialogs.chosenFile = File;
    desktop.dialogs.chosenFont = CharacterFormat{.bold = true};
    desktop.dialogs.chosenColor = 1;
    desktop.dialogs.whileShowing = [&](const forms::Form&) { application.UnloadWindow("Notes"); };
    for (const int button : {Notes::Save, Notes::ChooseFont, Notes::ChooseColor}) {
        Open().ImgBouton[button].Click();
        EXPECT_FALSE(IsOpen());
    }
    Notes& window = Open();
    OpenNote(window);
    messages.whileShowing = [&] { application.UnloadWindow("Notes"); };
    for (const int answer : {6, 7}) {
        Answer(answer);
        Open().ImgBouton[Notes::NewOrOpen].Click();
    }
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(desktop.dialogs.opened.size(), 1U) << "no dialog of a window that is gone";
    EXPECT_THAT(desktop.files.contents, IsEmpty());
    EXPECT_THAT(desktop.reports, IsEmpty());
}

}  // namespace
}  // namespace tavrin::tests
