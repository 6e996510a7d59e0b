// Every sample of the corpus on its way through the platform's editor: nothing of its text may be lost, and
// nothing may drift.

#include <windows.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <memory>

#include "e2e/driver/ui_thread.h"
#include "forms/controls/rich_text_box.h"
#include "forms/model/form.h"
#include "notes/rtf_reader.h"
#include "notes/rtf_writer.h"
#include "support/note_dump.h"
#include "unit/notes/corpus.h"
#include "win32/desktop/desktop.h"

namespace tavrin::e2e {
namespace {

using notes::Note;
using notes::RtfIndents;
using notes::RtfOutcome;
using notes::RtfReading;
using tests::NoteSample;

/// Where an editor may lose looks: Wine's keeps no justified text, knows one kind of tab stop, takes a
/// multiple of a line for one line, and writes fonts' names in no letters but ASCII.
constexpr auto LosesLooks = std::to_array<std::string_view>({
    "a font's name in its own letters",
    "a font's name of many bytes",
    "alignments",
    "dots before a tab stop",
    "multiples of lines",
    "tab stops",
});

class EditorForm : public forms::Form {
  public:
    explicit EditorForm(forms::Desktop& desktop)
        : Form(desktop, "Editor", "Editor", forms::BorderStyle::FixedDialog) {
        SetClientSize({6000, 6000});
    }
    forms::RichTextBox note{*this, "note", {0, 0, 6000, 6000}};
};

class NoteEditorTest : public testing::Test {
  protected:
    NoteEditorTest() : ui(LoopKind::Plain) {
        ui.Call([this] {
            desktop = std::make_unique<win32::Desktop>(GetModuleHandleW(nullptr));
            form = std::make_shared<EditorForm>(*desktop);
            form->Show();
        });
    }
    void TearDown() override {
        ui.Call([this] {
            form->Unload();
            form.reset();
        });
        ui.Settle();
        ui.Call([this] { desktop.reset(); });
    }

    /// What comes back of a note that the editor has got.
    RtfReading Through(const Note& note) {
        return ui.Call([&] {
            form->note.Load(notes::WriteRtf(note));
            return notes::ReadRtf(form->note.Save(), form->note.ExchangesIndents() ? RtfIndents::Exchanged
                                                                                   : RtfIndents::Standard);
        });
    }

    UiThread ui;
    std::unique_ptr<win32::Desktop> desktop;
    std::shared_ptr<EditorForm> form;
};

/// Pictures are the editor's to keep or not.
std::string TextWithoutPictures(std::string text) {
    constexpr std::string_view Picture = "\xEF\xBF\xBC";
    for (std::size_t i = 0; (i = text.find(Picture)) != std::string::npos;)
        text.erase(i, Picture.size());
    return text;
}

void ExpectKept(const NoteSample& sample, const Note& note, const Note& kept) {
    EXPECT_EQ(TextWithoutPictures(kept.text), TextWithoutPictures(note.text)) << sample.habit;
    const bool mayDiffer = std::ranges::count(LosesLooks, sample.habit) > 0 || !note.pictures.empty();
    // The look of a blank at a format's border is one or the other's.
    if (!mayDiffer && sample.habit != "a table with looks") {
        EXPECT_EQ(tests::Dump(kept), sample.dump) << sample.habit;
    }
}

TEST_F(NoteEditorTest, KeepsEverySampleAndLetsNothingDrift) {
    for (const NoteSample& sample : tests::AllSamples()) {
        const Note note = notes::ReadRtf(sample.file).note;
        const RtfReading first = Through(note);
        ASSERT_EQ(first.outcome, RtfOutcome::Whole) << sample.habit;
        ExpectKept(sample, note, first.note);
        const RtfReading second = Through(first.note);
        EXPECT_TRUE(second.note == first.note) << sample.habit << ": " << tests::Dump(second.note);
        EXPECT_EQ(notes::WriteRtf(second.note), notes::WriteRtf(first.note)) << sample.habit;
    }
}

}  // namespace
}  // namespace tavrin::e2e
